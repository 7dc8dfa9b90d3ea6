#pragma once

#include "Dialog/KivDlgControl.h"

#include <vector>

// A list of lines of which one is chosen. Lines are counted from 0; -1 is none.
class KivDlgCombo : public KivClass<KivDlgCombo, KivDlgControl> {
public:
    static constexpr const char* Name = "KivDlgCombo";
    enum class Mode { Replace, Insert };

    using KivClass::KivClass;

    // Puts a line at a position: before the line that is there, or in its place; -1 or the count appends. A
    // line of a number shows it and remembers its exact value.
    void SetLine(const KivUnicodeString& line, int position = -1, Mode mode = Mode::Insert);
    void SetLine(double line, int position = -1, Mode mode = Mode::Insert);
    // False, and the output untouched, for a position without a line (of a number).
    bool GetLine(KivUnicodeString& line, int position) const;
    bool GetLine(double& line, int position) const;
    int GetLineCount() const { return static_cast<int>(_lines.size()); }
    void ClearLine();

    // A position without a line is ignored, except -1: nothing chosen. Not zero: listeners are told.
    void SetSelect(int position, int notify = 0);
    int GetSelect() const { return _selected; }
    // The chosen line.
    KivUnicodeString GetShownValue() const override;
    // Begins with what an empty field cannot tell: that there is a value, which no line stands for.
    KivUnicodeString GetTip() const override;
    // The first line with that text; nothing is chosen when there is none.
    void SetSelect(const KivUnicodeString& line, int notify = 0);
    // What a user chose from the list.
    KivNotification* GetComboSelectNotification() const { return &_selectNotification; }

    // Characters and lines to make room for; 0 leaves it to the texts.
    void SetVisibleTextWidth(int characters);
    int GetVisibleTextWidth() const { return _textWidth; }
    void SetVisibleTextHeight(int lines);
    int GetVisibleTextHeight() const { return _textHeight; }

private:
    struct Line {
        KivUnicodeString text;
        std::optional<double> number;
    };
    void Put(Line line, int position, Mode mode);

    std::vector<Line> _lines;
    int _selected = -1;
    int _textWidth = 0;
    int _textHeight = 0;
    mutable KivNotification _selectNotification{"KivDlgComboSelectNotification"};
};

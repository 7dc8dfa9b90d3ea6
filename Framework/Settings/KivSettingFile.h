#pragma once

#include "Base/KivTextLines.h"
#include "Settings/KivSettingLine.h"
#include "Settings/KivSettingSeal.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct KivSettingEdit;

// The text of one settings file and what its lines say. The text is never changed: what a save writes is a
// new text, with a seal, in which every line that no change concerns is kept byte for byte.
class KivSettingFile {
public:
    KivSettingFile() : KivSettingFile(std::string()) {}
    explicit KivSettingFile(std::string text);

    std::string_view Text() const { return *_text; }

    // Every line but blank ones and comments, in order.
    const std::vector<KivSettingLine>& Lines() const { return _lines; }

    // Hands the value of a line over, to who has all that it says from now on: it counts as none.
    KivSettingValue TakeValue(std::size_t line)
    {
        _isTaken = true;
        return std::exchange(_lines[line].value, {});
    }
    // Whether values have been handed over.
    bool IsTaken() const { return _isTaken; }

    // A damaged line, or a version that this one does not know.
    bool IsDamaged() const { return _damaged; }
    bool IsOfAnotherVersion() const { return _newer; }

    // False when the last line has no end: whoever wrote the file may have been cut off.
    bool IsTerminated() const { return KivIsLastLineEnded(*_text); }

    KivSettingSeal::State SealState() const { return _seal; }

    // Says every line that costs something, and every key that stands twice (KivReport).
    void Report(const KivUnicodeString& path) const;

    // The file after changes, sealed. A changed key keeps the place of its last line; new keys come at the
    // end, in the order of the changes. No key may stand in the changes twice.
    KivSettingEdit With(const std::vector<KivSettingChange>& changes) const;

    // Makes room for becoming the file after an edit, which then cannot fail. The edit is one of this file
    // as it is. Answers the lines that it wrote, in their order, without values; none, and no list, when
    // other lines were taken out or may have moved.
    void Prepare(const KivSettingEdit& edit);
    std::optional<std::vector<KivSettingLine>> Become(KivSettingEdit edit);

    // The file without its damaged lines, sealed; a lock that can be read in one stays.
    KivSettingEdit WithoutDamage() const;

private:
    struct Match {
        const KivSettingLine* line;
        std::size_t change;
    };
    std::vector<Match> Find(const std::vector<KivSettingChange>& changes) const;

    // On the heap, so that the keys of the lines, which point into it, survive a move.
    std::unique_ptr<const std::string> _text;
    std::vector<KivSettingLine> _lines;
    KivSettingSeal::State _seal;
    int _lineCount = 0; // of all lines
    bool _damaged = false;
    bool _newer = false;
    bool _isTaken = false;
};

// What a save makes of a file.
struct KivSettingEdit {
    std::unique_ptr<const std::string> text;
    // The lines written, where they replace one line each or come behind all others: then the file need not
    // be read anew to know what its lines say.
    std::optional<std::vector<KivSettingLine>> written;
    std::optional<KivSettingFile> whole; // otherwise
};

#pragma once

#include "Dialog/KivDlgControl.h"

// A field for a line of text.
class KivDlgEditor : public KivClass<KivDlgEditor, KivDlgControl> {
public:
    static constexpr const char* Name = "KivDlgEditor";
    using KivClass::KivClass;

    // Not zero: listeners are told.
    void SetText(const KivUnicodeString& text, int notify);
    const KivUnicodeString& GetText() const { return _text; }
    // The text, or that there is none.
    KivUnicodeString GetShownValue() const override;
    // What a user has typed and committed.
    KivNotification* GetEditModifyNotification() const { return &_modified; }

    // How many characters it shows at once; 0 leaves that to the native field.
    void SetVisibleTextWidth(int characters);
    int GetVisibleTextWidth() const { return _textWidth; }

    // The text is the path of a directory: a native field offers to choose one. Any text may be typed all the
    // same, also a path that does not exist.
    void SetIsDirectory(bool isDirectory);
    bool IsDirectory() const { return _isDirectory; }

private:
    KivUnicodeString _text;
    int _textWidth = 0;
    bool _isDirectory = false;
    mutable KivNotification _modified{"KivDlgEditModifyNotification"};
};

#pragma once

#include "Dialog/KivDlgControl.h"
#include "Disk/KivDirectoryWatch.h"

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
    // What is known of that directory. Nothing is missing while there is no text, or it is no path.
    KivDirectoryState GetDirectoryState() const { return _directory.State(); }
    // Looks again: it may have been made meanwhile, or taken away.
    void CheckDirectory();
    // What is known of the directory has changed though the text has not: on CheckDirectory, or when its
    // place has answered at last (see KivDirectoryWatch::Drain).
    KivNotification* GetDirectoryNotification() const { return &_directoryChanged; }

private:
    void AskDirectory();
    void TellOfDirectory();

    KivUnicodeString _text;
    int _textWidth = 0;
    bool _isDirectory = false;
    KivDirectoryWatch _directory{[this] { TellOfDirectory(); }};
    mutable KivNotification _modified{"KivDlgEditModifyNotification"};
    mutable KivNotification _directoryChanged{"KivDlgEditDirectoryNotification"};
};

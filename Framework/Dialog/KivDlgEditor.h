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
    // What a user has typed and committed.
    KivNotification* GetEditModifyNotification() const { return &_modified; }

private:
    KivUnicodeString _text;
    mutable KivNotification _modified{"KivDlgEditModifyNotification"};
};

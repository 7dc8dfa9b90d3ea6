#pragma once

#include "Dialog/KivDlgControl.h"

// A switch with a title.
class KivDlgCheckButton : public KivClass<KivDlgCheckButton, KivDlgControl> {
public:
    static constexpr const char* Name = "KivDlgCheckButton";
    using KivClass::KivClass;

    // KivDlgChecked or KivDlgUnchecked; any other state counts as unchecked. Not zero: listeners are told.
    void SetState(unsigned long state, int notify);
    unsigned long GetState() const { return _state; }
    KivUnicodeString GetShownValue() const override;

    KivNotification* GetChkBModifyNotification() const { return &_modified; }
    KivNotification* GetChkBDoubleClickNotification() const { return &_doubleClicked; }

private:
    unsigned long _state = KivDlgUnchecked;
    mutable KivNotification _modified{"KivDlgChkBModifyNotification"};
    mutable KivNotification _doubleClicked{"KivDlgChkBDoubleClickNotification"};
};

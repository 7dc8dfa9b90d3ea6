#pragma once

#include "Dialog/KivDlgCheckButton.h"
#include "Lock/KivDrwLockControl.h"

// A lock-aware switch.
class KivDrwLockCheckButton : public KivDrwLockControlOf<KivDrwLockCheckButton, KivDlgCheckButton> {
public:
    static constexpr const char* Name = "KivDrwLockCheckButton";
    KivDrwLockCheckButton(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                          const KivString& name, unsigned long style);
    KivDrwLockCheckButton(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                          unsigned long style);

    // KivDlgChecked or KivDlgUnchecked.
    unsigned long GetState() const;
    void SetState(unsigned long state, int notify);
    // Null without a control.
    KivNotification* GetChkBModifyNotification() const;
    KivNotification* GetChkBDoubleClickNotification() const;
};

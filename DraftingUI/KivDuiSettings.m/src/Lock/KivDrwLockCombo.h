#pragma once

#include "Dialog/KivDlgCombo.h"
#include "Lock/KivDrwLockControl.h"

// A lock-aware list of choices.
class KivDrwLockCombo : public KivDrwLockControlOf<KivDrwLockCombo, KivDlgCombo> {
public:
    static constexpr const char* Name = "KivDrwLockCombo";
    KivDrwLockCombo(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                    const KivString& name, unsigned long style);
    KivDrwLockCombo(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                    unsigned long style);

    // The combo itself, on which pages also subscribe; null without a control.
    KivDlgCombo* GetCombo() const { return Wrapped(); }
};

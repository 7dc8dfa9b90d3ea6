#pragma once

#include "Dialog/KivComboWeight.h"
#include "Lock/KivDrwLockControl.h"

// A lock-aware combo of line weights.
class KivDrwLockComboWeight : public KivDrwLockControlOf<KivDrwLockComboWeight, KivComboWeight> {
public:
    static constexpr const char* Name = "KivDrwLockComboWeight";
    KivDrwLockComboWeight(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                          const KivString& name, unsigned long style, unsigned int variant);

    KivDlgCombo* GetCombo() const;
    // 1, the first real weight, without a control.
    unsigned int GetSelect() const;
    void SetSelect(unsigned int weight);
};

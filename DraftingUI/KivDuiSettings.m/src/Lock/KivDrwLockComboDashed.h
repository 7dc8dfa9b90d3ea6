#pragma once

#include "Dialog/KivComboDashed.h"
#include "Lock/KivDrwLockControl.h"

// A lock-aware combo of line types. Settings store 0 for the break line, which is the combo's entry 8; 8
// itself is never stored.
class KivDrwLockComboDashed : public KivDrwLockControlOf<KivDrwLockComboDashed, KivComboDashed> {
public:
    static constexpr const char* Name = "KivDrwLockComboDashed";
    KivDrwLockComboDashed(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                          const KivString& name, char withBreakLine, unsigned long style,
                          unsigned int variant);

    KivDlgCombo* GetCombo() const;
    // The stored number of the type; 0 without a control.
    unsigned int GetSelect() const;
    void SetSelect(unsigned int type);
    void SetVisibleTextWidth(int characters);
    void SetVisibleTextHeight(int lines);
};

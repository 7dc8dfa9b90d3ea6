#pragma once

#include "Dialog/KivComboColor.h"
#include "Lock/KivDrwLockControl.h"

// A lock-aware color combo.
class KivDrwLockComboColor : public KivDrwLockControlOf<KivDrwLockComboColor, KivComboColor> {
public:
    static constexpr const char* Name = "KivDrwLockComboColor";
    KivDrwLockComboColor(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                         const KivString& name, unsigned long style, unsigned int red, unsigned int green,
                         unsigned int blue, int flag);
    KivDrwLockComboColor(KivDialog* parent, const KivString& name, const KivSettingInfo& info);

    KivDlgCombo* GetCombo() const;
    // The combo's own result; 0 without a control, and the outputs untouched.
    int GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue) const;
    // With the name that is shown; deliberately always 0: only its outputs count.
    int GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue,
                         KivUnicodeString* name) const;
    void SetSelectedColor(unsigned int red, unsigned int green, unsigned int blue);
};

#pragma once

#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgCombo.h"
#include "Lock/KivDrwLockControls.h"

// A lock-aware list of choices.
class KivDrwLockCombo : public KivDrwLockStyledControlOf<KivDrwLockCombo, KivDlgCombo> {
public:
    static constexpr const char* Name = "KivDrwLockCombo";
    using KivDrwLockStyledControlOf::KivDrwLockStyledControlOf;

    // The combo itself, on which pages also subscribe; null without a control.
    KivDlgCombo* GetCombo() const { return Wrapped(); }
};

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

#pragma once

#include "Dialog/KivDlgCombo.h"

// A combo of line types. They are numbered from 1, as drawings number them: 1 to 7 are the framework's, the
// further ones are those that were added.
class KivComboDashed : public KivClass<KivComboDashed, KivDlgCombo> {
public:
    static constexpr const char* Name = "KivComboDashed";
    static constexpr unsigned int kStandardTypes = 7;

    // The last two arguments are the framework's.
    KivComboDashed(KivDialog* parent, const KivString& name, unsigned long style, unsigned int variant,
                   int reserved);

    KivDlgCombo* GetCombo() { return this; }

    // Adds that many types of that name, numbered on from the last one.
    void AddOtherType(const KivString& type, int count);

    // 0 when nothing is selected. A number that no line has selects none.
    unsigned int GetSelect() const { return static_cast<unsigned int>(KivDlgCombo::GetSelect() + 1); }
    void SetSelect(unsigned int type);
};

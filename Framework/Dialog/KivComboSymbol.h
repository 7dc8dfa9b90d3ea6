#pragma once

#include "Dialog/KivDlgCombo.h"

// A combo of point symbols, numbered from 1 as drawings number them.
class KivComboSymbol : public KivClass<KivComboSymbol, KivDlgCombo> {
public:
    static constexpr const char* Name = "KivComboSymbol";
    static constexpr unsigned int kSymbols = 9;

    KivComboSymbol(KivDialog* parent, const KivString& name, unsigned long style);

    KivDlgCombo* GetCombo() { return this; }

    // 0 when nothing is selected. A number that no line has selects none.
    unsigned int GetSelect() const { return static_cast<unsigned int>(KivDlgCombo::GetSelect() + 1); }
    void SetSelect(unsigned int symbol);
};

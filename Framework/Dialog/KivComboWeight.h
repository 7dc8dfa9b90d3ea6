#pragma once

#include "Dialog/KivDlgCombo.h"

#include <array>

// A combo of line weights, numbered from 0.
class KivComboWeight : public KivClass<KivComboWeight, KivDlgCombo> {
public:
    static constexpr const char* Name = "KivComboWeight";
    // Thickness of each weight in millimeters.
    static constexpr std::array<double, 7> kMillimeters = {0.1, 0.35, 0.7, 1.05, 1.4, 1.75, 2.1};

    // The last two arguments are the framework's.
    KivComboWeight(KivDialog* parent, const KivString& name, unsigned long style, unsigned int variant,
                   int reserved);

    unsigned int GetSelect() const { return static_cast<unsigned int>(KivDlgCombo::GetSelect()); }
    // A number that no line has selects none.
    void SetSelect(unsigned int weight);
    KivDlgCombo* GetCombo() { return this; }
};

#pragma once

#include "Form/KivTypedBinding.h"
#include "Lock/KivDrwLockComboDashed.h"
#include "Lock/KivDrwLockComboWeight.h"

// A line type or a line weight, by its number. A stored number that none in the combo has shows none as
// chosen.
template <class LockCombo> class KivLineStyleBinding final : public KivTypedBinding<LockCombo, unsigned int> {
public:
    KivLineStyleBinding(LockCombo* combo, KivPropertyOf<unsigned int>& property, KivControlBinding::Rule rule)
        : KivTypedBinding<LockCombo, unsigned int>(combo, property, std::move(rule))
    {}

private:
    void ShowValue(LockCombo& combo, const unsigned int& number) override { combo.SetSelect(number); }
    std::optional<unsigned int> Reading(LockCombo& combo) override
    {
        if (!combo.GetCombo() || combo.GetCombo()->GetSelect() < 0) return {};
        return combo.GetSelect();
    }
};

using KivLineTypeBinding = KivLineStyleBinding<KivDrwLockComboDashed>;
using KivLineWeightBinding = KivLineStyleBinding<KivDrwLockComboWeight>;

#pragma once

#include "Form/KivPageRow.h"
#include "Lock/KivDrwLockComboDashed.h"
#include "Lock/KivDrwLockComboWeight.h"

// A line type or a line weight, by its number. A stored number that no line has shows none as chosen.
template <class LockCombo> class KivLineRow final : public KivValueRow<LockCombo, unsigned int> {
public:
    KivLineRow(LockCombo* combo, KivPropertyOf<unsigned int>& property, KivPageRow::Rule rule)
        : KivValueRow<LockCombo, unsigned int>(combo, property, std::move(rule))
    {}

private:
    void ShowValue(LockCombo& combo, const unsigned int& number) override { combo.SetSelect(number); }
    std::optional<unsigned int> Reading(LockCombo& combo) override
    {
        if (!combo.GetCombo() || combo.GetCombo()->GetSelect() < 0) return {};
        return combo.GetSelect();
    }
};

using KivLineTypeRow = KivLineRow<KivDrwLockComboDashed>;
using KivLineWeightRow = KivLineRow<KivDrwLockComboWeight>;

#pragma once

#include "KivDrwLockComboDashed.h"
#include "KivDrwLockComboWeight.h"
#include "KivPageRow.h"

// A line type or a line weight, by its number. A stored number that no line has leaves the combo as it is.
template <class LockCombo> class KivLineRow final : public KivPageRow {
public:
    KivLineRow(LockCombo* combo, KivCachedValue<unsigned int>& value, Rule rule)
        : KivPageRow(value, std::move(rule)), _combo(combo), _value(value)
    {}
    void Show() override
    {
        if (_combo) _combo->SetSelect(_value.cached);
    }
    using KivPageRow::Read;
    void Read() override
    {
        if (_combo) _value.cached = _combo->GetSelect();
    }

private:
    KivDrwLockDialog* Control() const override { return _combo.Get(); }

    KivWeakPtr<LockCombo> _combo;
    KivCachedValue<unsigned int>& _value;
};

using KivLineTypeRow = KivLineRow<KivDrwLockComboDashed>;
using KivLineWeightRow = KivLineRow<KivDrwLockComboWeight>;

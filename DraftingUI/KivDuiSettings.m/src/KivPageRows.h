#pragma once

#include "KivDrwLockCheckButton.h"
#include "KivDrwLockComboColor.h"
#include "KivDrwLockSpinner.h"
#include "KivPageRow.h"

// The kinds of rows, by the control that they have. A control belongs to the dialog tree and may be gone.

// A switch.
class KivCheckRow final : public KivPageRow {
public:
    KivCheckRow(KivDrwLockCheckButton* button, KivCachedValue<unsigned char>& value, Rule rule);
    void Show() override;

private:
    bool Store(KivCommand* from) override;
    KivDrwLockDialog* Control() const override { return _button.Get(); }

    KivWeakPtr<KivDrwLockCheckButton> _button;
    KivCachedValue<unsigned char>& _value;
};

// A measure: shown in the spinner's unit, stored in another. The two factors are stated, not computed from
// one another, so that each direction rounds as it always has.
class KivMeasureRow final : public KivPageRow {
public:
    KivMeasureRow(KivDrwLockSpinner* spinner, KivCachedValue<double>& value, double shownPerStored,
                  double storedPerShown, Rule rule);
    void Show() override;

private:
    bool Store(KivCommand* from) override;
    KivDrwLockDialog* Control() const override { return _spinner.Get(); }

    KivWeakPtr<KivDrwLockSpinner> _spinner;
    KivCachedValue<double>& _value;
    double _shownPerStored;
    double _storedPerShown;
};

// A count: what is typed is cut to a whole number and shown so.
class KivCountRow final : public KivPageRow {
public:
    KivCountRow(KivDrwLockSpinner* spinner, KivCachedValue<int>& value, Rule rule);
    void Show() override;

private:
    bool Store(KivCommand* from) override;
    KivDrwLockDialog* Control() const override { return _spinner.Get(); }

    KivWeakPtr<KivDrwLockSpinner> _spinner;
    KivCachedValue<int>& _value;
};

// A colour.
class KivColourRow final : public KivPageRow {
public:
    KivColourRow(KivDrwLockComboColor* combo, KivCachedValue<KivPageColour>& value, Rule rule);
    void Show() override;

private:
    bool Store(KivCommand* from) override;
    KivDrwLockDialog* Control() const override { return _combo.Get(); }

    KivWeakPtr<KivDrwLockComboColor> _combo;
    KivCachedValue<KivPageColour>& _value;
};

#pragma once

#include "Dialog/KivDlgRadioButton.h"
#include "KivDrwLockCheckButton.h"
#include "KivDrwLockCombo.h"
#include "KivDrwLockComboColor.h"
#include "KivDrwLockFrame.h"
#include "KivDrwLockSpinner.h"
#include "KivDrwSettingsServices.h"
#include "KivFormChoice.h"
#include "KivPageRow.h"

// The kinds of rows, by the control that they have. A control belongs to the dialog tree and may be gone.

// A switch: any value but 0 is on; it is read as 1 or 0.
template <class T> class KivCheckRow final : public KivPageRow {
public:
    KivCheckRow(KivDrwLockCheckButton* button, KivCachedValue<T>& value, Rule rule)
        : KivPageRow(value, std::move(rule)), _button(button), _value(value)
    {}
    void Show() override { KivDrwSettingsServices::UpdateCheckButton(_button.Get(), _value.cached != 0); }
    using KivPageRow::Read;
    void Read() override
    {
        unsigned char isOn = 0;
        if (_button && KivDrwSettingsServices::GetValueFromCheckButton(_button.Get(), _button->GetDialog(),
                                                                       isOn) == S_OK)
            _value.cached = isOn;
    }

private:
    KivDrwLockDialog* Control() const override { return _button.Get(); }

    KivWeakPtr<KivDrwLockCheckButton> _button;
    KivCachedValue<T>& _value;
};

// A measure: shown in the spinner's unit, stored in another. The two factors are stated, not computed from
// one another, so that each direction rounds as it always has.
class KivMeasureRow final : public KivPageRow {
public:
    KivMeasureRow(KivDrwLockSpinner* spinner, KivCachedValue<double>& value, double shownPerStored,
                  double storedPerShown, Rule rule);
    void Show() override;
    using KivPageRow::Read;
    void Read() override;

private:
    KivDrwLockDialog* Control() const override { return _spinner.Get(); }

    KivWeakPtr<KivDrwLockSpinner> _spinner;
    KivCachedValue<double>& _value;
    double _shownPerStored;
    double _storedPerShown;
};

// A whole number that is typed as a real one: what is typed is cut towards zero and shown so.
class KivWholeRow final : public KivPageRow {
public:
    KivWholeRow(KivDrwLockSpinner* spinner, KivCachedValue<int>& value, Rule rule);
    void Show() override;
    using KivPageRow::Read;
    void Read() override;

private:
    KivDrwLockDialog* Control() const override { return _spinner.Get(); }

    KivWeakPtr<KivDrwLockSpinner> _spinner;
    KivCachedValue<int>& _value;
};

// The lock of a value that its owner shows and reads itself.
class KivLockOnlyRow final : public KivPageRow {
public:
    using KivPageRow::Read;
    KivLockOnlyRow(KivDrwLockDialog* control, KivBoundValue& value) : KivPageRow(value, {}), _control(control)
    {}
    void Show() override {}
    void Read() override {}

private:
    KivDrwLockDialog* Control() const override { return _control.Get(); }

    KivWeakPtr<KivDrwLockDialog> _control;
};

// A color.
class KivColorRow final : public KivPageRow {
public:
    KivColorRow(KivDrwLockComboColor* combo, KivCachedValue<KivPageColor>& value, Rule rule);
    void Show() override;
    using KivPageRow::Read;
    void Read() override;

private:
    KivDrwLockDialog* Control() const override { return _combo.Get(); }

    bool ReadToStore() override;

    KivWeakPtr<KivDrwLockComboColor> _combo;
    KivCachedValue<KivPageColor>& _value;
};

// A choice from words.
class KivChoiceRow final : public KivPageRow {
public:
    KivChoiceRow(KivDrwLockCombo* combo, KivCachedValue<int>& value, const KivFormChoice& choice, Rule rule);
    void Show() override;
    using KivPageRow::Read;
    void Read() override;

private:
    KivDrwLockDialog* Control() const override { return _combo.Get(); }

    KivWeakPtr<KivDrwLockCombo> _combo;
    KivCachedValue<int>& _value;
    KivFormChoice _choice;
};

// A choice from names that are found when the page is shown, such as files on the disk. A stored name that is
// not among them stays stored.
class KivNameRow final : public KivPageRow {
public:
    KivNameRow(KivDrwLockCombo* combo, KivCachedValue<KivUnicodeString>& value, KivFormNames names,
               Rule rule);
    void Show() override;
    using KivPageRow::Read;
    void Read() override;

private:
    KivDrwLockDialog* Control() const override { return _combo.Get(); }
    bool ReadToStore() override;

    KivWeakPtr<KivDrwLockCombo> _combo;
    KivCachedValue<KivUnicodeString>& _value;
    KivFormNames _names;
};

// A choice of radio buttons under one padlock. A button that is chosen already stores nothing.
class KivRadioRow final : public KivPageRow {
public:
    struct Button {
        KivWeakPtr<KivDlgRadioButton> button;
        int value;
    };
    // Without a value that another button has, the one of `otherwise` is shown as chosen, if there is one.
    KivRadioRow(KivDrwLockFrame* frame, KivCachedValue<int>& value, std::vector<Button> buttons,
                std::optional<int> otherwise, Rule rule);
    void Show() override;
    using KivPageRow::Read;
    void Read() override;

private:
    KivDrwLockDialog* Control() const override { return _frame.Get(); }
    bool IsSender(const KivCommand* from) const override;
    bool ReadToStore() override;

    const Button* Chosen() const;

    KivWeakPtr<KivDrwLockFrame> _frame;
    KivCachedValue<int>& _value;
    std::vector<Button> _buttons;
    std::optional<int> _otherwise;
};

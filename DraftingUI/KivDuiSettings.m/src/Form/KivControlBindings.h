#pragma once

#include "Base/KivListOf.h"
#include "Base/KivResult.h"
#include "Dialog/KivDlgButtons.h"
#include "Form/KivControlBinding.h"
#include "KivDrwControlServices.h"
#include "KivSettingKind.h"
#include "Lock/KivDrwLockCombos.h"
#include "Lock/KivDrwLockControls.h"
#include "Lock/KivDrwLockDialog.h"

// The bindings, by the kind of control that they tie.

// A switch: it is read as 1 or 0.
template <class T> class KivCheckBinding final : public KivTypedBinding<KivDrwLockCheckButton, T> {
public:
    KivCheckBinding(KivDrwLockCheckButton* button, KivPropertyOf<T>& property, bool isOnFor1Alone,
                    KivControlBinding::Rule rule)
        : KivTypedBinding<KivDrwLockCheckButton, T>(button, property, std::move(rule)),
          _isOnFor1Alone(isOnFor1Alone)
    {}

private:
    void ShowValue(KivDrwLockCheckButton& button, const T& value) override
    {
        const bool isOn = _isOnFor1Alone ? value == 1 : value != 0;
        KivDrwSettingsServices::UpdateCheckButton(&button, isOn);
    }
    std::optional<T> Reading(KivDrwLockCheckButton& button) override
    {
        unsigned char isOn = 0;
        KivDrwSettingsServices::GetValueFromCheckButton(&button, button.GetDialog(), isOn);
        return static_cast<T>(isOn);
    }

    bool _isOnFor1Alone;
};

// The binding of a control whose values have a kind.
template <class LockControl, class T> class KivKindBinding : public KivTypedBinding<LockControl, T> {
public:
    KivKindBinding(LockControl* control, KivPropertyOf<T>& property, const KivSettingKind& kind,
                   KivControlBinding::Rule rule)
        : KivTypedBinding<LockControl, T>(control, property, std::move(rule)), _kind(kind)
    {}

protected:
    const KivSettingKind& _kind;
};

// A measure: shown in the spinner's unit, stored in another.
class KivMeasureBinding final : public KivKindBinding<KivDrwLockSpinner, double> {
public:
    using KivKindBinding::KivKindBinding;

private:
    void ShowValue(KivDrwLockSpinner& spinner, const double& value) override;
    std::optional<double> Reading(KivDrwLockSpinner& spinner) override;
};

// A whole number in a field of real ones: what a page puts there is cut towards zero and shown so.
class KivWholeNumberBinding final : public KivTypedBinding<KivDrwLockSpinner, int> {
public:
    using KivTypedBinding::KivTypedBinding;

private:
    void ShowValue(KivDrwLockSpinner& spinner, const int& value) override;
    std::optional<int> Reading(KivDrwLockSpinner& spinner) override;
};

// The lock of a property that its owner shows and reads itself.
class KivLockOnlyBinding final : public KivControlBinding {
public:
    KivLockOnlyBinding(KivDrwLockDialog* control, KivProperty& property)
        : KivControlBinding(control, property, {})
    {}
    void Show() override {}
    bool Read() override { return false; }
};

// A color. What is none, components out of range, shows none as chosen.
class KivColorBinding final : public KivTypedBinding<KivDrwLockComboColor, KivPageColor> {
public:
    using KivTypedBinding::KivTypedBinding;

private:
    void ShowValue(KivDrwLockComboColor& combo, const KivPageColor& color) override;
    std::optional<KivPageColor> Reading(KivDrwLockComboColor& combo) override;
};

// A choice from texts.
class KivChoiceBinding final : public KivKindBinding<KivDrwLockCombo, int> {
public:
    using KivKindBinding::KivKindBinding;

private:
    void ShowValue(KivDrwLockCombo& combo, const int& value) override;
    std::optional<int> Reading(KivDrwLockCombo& combo) override;
};

// Delivers names that are found anew whenever the page is shown.
using KivFormNames = HRESULT (*)(KivListOfUnicodeString& names);

// A choice from names that are found when the page is shown, such as files on the disk.
class KivNameBinding final : public KivTypedBinding<KivDrwLockCombo, KivUnicodeString> {
public:
    KivNameBinding(KivDrwLockCombo* combo, KivPropertyOf<KivUnicodeString>& property, KivFormNames names,
                   Rule rule);

private:
    void ShowValue(KivDrwLockCombo& combo, const KivUnicodeString& value) override;
    std::optional<KivUnicodeString> Reading(KivDrwLockCombo& combo) override;

    KivFormNames _names;
};

// A choice of radio buttons under one padlock. A button that is chosen already stores nothing.
class KivRadioBinding final : public KivTypedBinding<KivDrwLockFrame, int> {
public:
    struct Button {
        KivWeakPtr<KivDlgRadioButton> button;
        int value;
    };
    // Without a value that another button has, the one of `otherwise` is shown as chosen, if there is one.
    KivRadioBinding(KivDrwLockFrame* frame, KivPropertyOf<int>& property, std::vector<Button> buttons,
                    std::optional<int> otherwise, Rule rule);
    bool IsSender(const KivCommand* from) const override;

private:
    void ShowValue(KivDrwLockFrame& frame, const int& value) override;
    std::optional<int> Reading(KivDrwLockFrame& frame) override;

    std::vector<Button> _buttons;
    std::optional<int> _otherwise;
};

// A text. It is stored as it was typed.
class KivTextBinding final : public KivTypedBinding<KivDrwLockEditor, KivUnicodeString> {
public:
    using KivTypedBinding::KivTypedBinding;

private:
    void ShowValue(KivDrwLockEditor& editor, const KivUnicodeString& value) override;
    std::optional<KivUnicodeString> Reading(KivDrwLockEditor& editor) override;
};

// A line type or a line weight, by its number. A stored number that none in the combo has shows none as
// chosen.
template <class LockCombo> class KivLineStyleBinding final : public KivTypedBinding<LockCombo, unsigned int> {
public:
    using KivTypedBinding<LockCombo, unsigned int>::KivTypedBinding;

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

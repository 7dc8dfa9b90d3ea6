#pragma once

#include "Base/KivListOfUnicodeString.h"
#include "Base/KivResult.h"
#include "Dialog/KivDlgRadioButton.h"
#include "Form/KivPageColor.h"
#include "Form/KivTypedBinding.h"
#include "KivDrwSettingsServices.h"
#include "KivSettingKind.h"
#include "Lock/KivDrwLockCheckButton.h"
#include "Lock/KivDrwLockCombo.h"
#include "Lock/KivDrwLockComboColor.h"
#include "Lock/KivDrwLockFrame.h"
#include "Lock/KivDrwLockSpinner.h"

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

// A measure: shown in the spinner's unit, stored in another.
class KivMeasureBinding final : public KivTypedBinding<KivDrwLockSpinner, double> {
public:
    KivMeasureBinding(KivDrwLockSpinner* spinner, KivPropertyOf<double>& property, const KivSettingKind& kind,
                      Rule rule);

private:
    void ShowValue(KivDrwLockSpinner& spinner, const double& value) override;
    std::optional<double> Reading(KivDrwLockSpinner& spinner) override;

    const KivSettingKind& _kind;
};

// A whole number that is typed as a real one: what is typed is cut towards zero and shown so.
class KivWholeNumberBinding final : public KivTypedBinding<KivDrwLockSpinner, int> {
public:
    KivWholeNumberBinding(KivDrwLockSpinner* spinner, KivPropertyOf<int>& property, Rule rule);

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
    KivColorBinding(KivDrwLockComboColor* combo, KivPropertyOf<KivPageColor>& property, Rule rule);

private:
    void ShowValue(KivDrwLockComboColor& combo, const KivPageColor& color) override;
    std::optional<KivPageColor> Reading(KivDrwLockComboColor& combo) override;
};

// A choice from texts.
class KivChoiceBinding final : public KivTypedBinding<KivDrwLockCombo, int> {
public:
    KivChoiceBinding(KivDrwLockCombo* combo, KivPropertyOf<int>& property, const KivSettingKind& kind,
                     Rule rule);

private:
    void ShowValue(KivDrwLockCombo& combo, const int& value) override;
    std::optional<int> Reading(KivDrwLockCombo& combo) override;

    const KivSettingKind& _kind;
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

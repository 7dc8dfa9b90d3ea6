#include "Form/KivControlBindings.h"

#include "Base/KivTextCatalogue.h"
#include "Settings/KivDrwStoredColor.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

// Cut towards zero; one that no int can hold, of either sign or none, gives the greatest int, deliberately.
int WholeOf(double value)
{
    constexpr double kGreatest = std::numeric_limits<int>::max();
    return value > -kGreatest - 2.0 && value < kGreatest + 1.0 ? static_cast<int>(value)
                                                               : std::numeric_limits<int>::max();
}

} // namespace

void KivMeasureBinding::ShowValue(KivDrwLockSpinner& spinner, const double& value)
{
    KivDrwSettingsServices::UpdateSpinner(&spinner, value * _kind.shownPerStored);
}

std::optional<double> KivMeasureBinding::Reading(KivDrwLockSpinner& spinner)
{
    double value = 0.0;
    KivDrwSettingsServices::GetValueFromSpinner(&spinner, spinner.GetDialog(), _kind.storedPerShown, value);
    return value;
}

void KivWholeNumberBinding::ShowValue(KivDrwLockSpinner& spinner, const int& value)
{
    KivDrwSettingsServices::UpdateSpinner(&spinner, static_cast<double>(value));
}

std::optional<int> KivWholeNumberBinding::Reading(KivDrwLockSpinner& spinner)
{
    const int whole = WholeOf(spinner.GetValue());
    // It is shown as it counts.
    if (spinner.GetValue() != static_cast<double>(whole)) ShowValue(spinner, whole);
    return whole;
}

void KivColorBinding::ShowValue(KivDrwLockComboColor& combo, const KivPageColor& color)
{
    if (KivDrwSettingsServices::UpdateComboColor(&combo, color.red, color.green, color.blue) == S_OK) return;
    if (KivDlgCombo* inner = combo.GetCombo()) inner->SetSelect(-1);
}

std::optional<KivPageColor> KivColorBinding::Reading(KivDrwLockComboColor& combo)
{
    KivPageColor color;
    if (!combo.GetCombo() || combo.GetCombo()->GetSelect() < 0 ||
        KivDrwSettingsServices::GetValueFromComboColor(&combo, combo.GetDialog(), color.red, color.green,
                                                       color.blue) != S_OK)
        return {};
    return color;
}

void KivChoiceBinding::ShowValue(KivDrwLockCombo& control, const int& value)
{
    KivDlgCombo* combo = control.GetCombo();
    if (!combo) return;
    const KivTextCatalogue& texts = KivTextCatalogue::Open(_kind.catalogue);
    const KivDialog::ChangesAsOne asOne(*combo);
    combo->ClearLine();
    for (const KivSettingChoice& choice : _kind.Choices()) {
        combo->SetLine(texts.Text(choice.name), -1);
        if (choice.value == value) combo->SetSelect(combo->GetLineCount() - 1);
    }
}

std::optional<int> KivChoiceBinding::Reading(KivDrwLockCombo& control)
{
    const int index = control.GetCombo() ? control.GetCombo()->GetSelect() : -1;
    if (index < 0) return {};
    return _kind.Choices()[static_cast<std::size_t>(index)].value;
}

KivNameBinding::KivNameBinding(KivDrwLockCombo* combo, KivPropertyOf<KivUnicodeString>& property,
                               KivFormNames names, Rule rule)
    : KivTypedBinding(combo, property, std::move(rule)), _names(names)
{}

void KivNameBinding::ShowValue(KivDrwLockCombo& control, const KivUnicodeString& value)
{
    KivDlgCombo* combo = control.GetCombo();
    if (!combo) return;
    KivListOfUnicodeString names;
    _names(names);
    const KivDialog::ChangesAsOne asOne(*combo);
    combo->ClearLine();
    for (const KivUnicodeString& name : names) combo->SetLine(name, -1);
    combo->SetSelect(value);
}

std::optional<KivUnicodeString> KivNameBinding::Reading(KivDrwLockCombo& control)
{
    const KivDlgCombo* combo = control.GetCombo();
    KivUnicodeString name;
    if (!combo || !combo->GetLine(name, combo->GetSelect())) return {};
    return name;
}

KivRadioBinding::KivRadioBinding(KivDrwLockFrame* frame, KivPropertyOf<int>& property,
                                 std::vector<Button> buttons, std::optional<int> otherwise, Rule rule)
    : KivTypedBinding(frame, property, std::move(rule)), _buttons(std::move(buttons)), _otherwise(otherwise)
{}

void KivRadioBinding::ShowValue(KivDrwLockFrame&, const int& wanted)
{
    const bool isThere = std::any_of(_buttons.begin(), _buttons.end(),
                                     [wanted](const Button& button) { return button.value == wanted; });
    const std::optional<int> shown = isThere ? wanted : _otherwise;
    for (const auto& [button, value] : _buttons) {
        if (button) button->SetState(shown == value ? KivDlgChecked : KivDlgUnchecked, 0);
    }
}

std::optional<int> KivRadioBinding::Reading(KivDrwLockFrame&)
{
    for (const auto& [button, value] : _buttons) {
        if (button && button->GetState() == KivDlgChecked) return value;
    }
    return {};
}

bool KivRadioBinding::IsSender(const KivCommand* from) const
{
    return from && std::any_of(_buttons.begin(), _buttons.end(),
                               [from](const Button& button) { return button.button.Get() == from; });
}

void KivTextBinding::ShowValue(KivDrwLockEditor& editor, const KivUnicodeString& value)
{
    if (KivDlgEditor* field = editor.GetEditor()) field->SetText(value, 0);
}

std::optional<KivUnicodeString> KivTextBinding::Reading(KivDrwLockEditor& editor)
{
    const KivDlgEditor* field = editor.GetEditor();
    if (!field) return {};
    return field->GetText();
}

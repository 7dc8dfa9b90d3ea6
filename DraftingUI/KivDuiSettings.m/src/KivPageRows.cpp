#include "KivPageRows.h"

#include "Dialog/KivTextCatalogue.h"
#include "KivWholeOf.h"

#include <algorithm>
#include <utility>

KivMeasureRow::KivMeasureRow(KivDrwLockSpinner* spinner, KivCachedValue<double>& value, double shownPerStored,
                             double storedPerShown, Rule rule)
    : KivPageRow(value, std::move(rule)), _spinner(spinner), _value(value), _shownPerStored(shownPerStored),
      _storedPerShown(storedPerShown)
{}

void KivMeasureRow::Show()
{
    KivDrwSettingsServices::UpdateSpinner(_spinner.Get(), _value.cached * _shownPerStored);
}

void KivMeasureRow::Read()
{
    if (_spinner)
        KivDrwSettingsServices::GetValueFromSpinner(_spinner.Get(), _spinner->GetDialog(), _storedPerShown,
                                                    _value.cached);
}

KivWholeRow::KivWholeRow(KivDrwLockSpinner* spinner, KivCachedValue<int>& value, Rule rule)
    : KivPageRow(value, std::move(rule)), _spinner(spinner), _value(value)
{}

void KivWholeRow::Show()
{
    KivDrwSettingsServices::UpdateSpinner(_spinner.Get(), static_cast<double>(_value.cached));
}

void KivWholeRow::Read()
{
    if (!_spinner) return;
    _value.cached = KivWholeOf(_spinner->GetValue());
    Show();
}

KivColorRow::KivColorRow(KivDrwLockComboColor* combo, KivCachedValue<KivPageColor>& value, Rule rule)
    : KivPageRow(value, std::move(rule)), _combo(combo), _value(value)
{}

void KivColorRow::Show()
{
    KivDrwSettingsServices::UpdateComboColor(_combo.Get(), _value.cached.red, _value.cached.green,
                                             _value.cached.blue);
}

void KivColorRow::Read()
{
    ReadToStore();
}

bool KivColorRow::ReadToStore()
{
    return _combo && KivDrwSettingsServices::GetValueFromComboColor(_combo.Get(), _combo->GetDialog(),
                                                                    _value.cached.red, _value.cached.green,
                                                                    _value.cached.blue) == S_OK;
}

KivChoiceRow::KivChoiceRow(KivDrwLockCombo* combo, KivCachedValue<int>& value, const KivFormChoice& choice,
                           Rule rule)
    : KivPageRow(value, std::move(rule)), _combo(combo), _value(value), _choice(choice)
{}

void KivChoiceRow::Show()
{
    KivDlgCombo* combo = _combo ? _combo->GetCombo() : nullptr;
    if (!combo) return;
    const KivTextCatalogue& texts = KivTextCatalogue::Open(_choice.catalogue);
    const KivDialog::ChangesAsOne asOne(*combo);
    combo->ClearLine();
    for (const KivFormChoice::Line& line : _choice.lines) {
        combo->SetLine(texts.Find(line.key), -1);
        if (line.value == _value.cached) combo->SetSelect(combo->GetLineCount() - 1);
    }
}

void KivChoiceRow::Read()
{
    const int line = _combo && _combo->GetCombo() ? _combo->GetCombo()->GetSelect() : -1;
    if (line >= 0) _value.cached = _choice.lines[static_cast<std::size_t>(line)].value;
}

KivNameRow::KivNameRow(KivDrwLockCombo* combo, KivCachedValue<KivUnicodeString>& value, KivFormNames names,
                       Rule rule)
    : KivPageRow(value, std::move(rule)), _combo(combo), _value(value), _names(names)
{}

void KivNameRow::Show()
{
    KivDlgCombo* combo = _combo ? _combo->GetCombo() : nullptr;
    if (!combo) return;
    KivListOfUnicodeString names;
    _names(names);
    const KivDialog::ChangesAsOne asOne(*combo);
    combo->ClearLine();
    for (const KivUnicodeString& name : names) combo->SetLine(name, -1);
    combo->SetSelect(_value.cached);
}

void KivNameRow::Read()
{
    ReadToStore();
}

bool KivNameRow::ReadToStore()
{
    KivDlgCombo* combo = _combo ? _combo->GetCombo() : nullptr;
    KivUnicodeString name;
    if (!combo || !combo->GetLine(name, combo->GetSelect()) || name == _value.cached) return false;
    _value.cached = name;
    return true;
}

KivRadioRow::KivRadioRow(KivDrwLockFrame* frame, KivCachedValue<int>& value, std::vector<Button> buttons,
                         std::optional<int> otherwise, Rule rule)
    : KivPageRow(value, std::move(rule)), _frame(frame), _value(value), _buttons(std::move(buttons)),
      _otherwise(otherwise)
{}

void KivRadioRow::Show()
{
    const auto has = [this](int value) {
        return std::any_of(_buttons.begin(), _buttons.end(),
                           [value](const Button& button) { return button.value == value; });
    };
    const std::optional<int> shown = has(_value.cached) ? _value.cached : _otherwise;
    for (const auto& [button, value] : _buttons) {
        if (button) button->SetState(shown == value ? KivDlgChecked : KivDlgUnchecked, 0);
    }
}

const KivRadioRow::Button* KivRadioRow::Chosen() const
{
    for (const Button& button : _buttons) {
        if (button.button && button.button->GetState() == KivDlgChecked) return &button;
    }
    return nullptr;
}

void KivRadioRow::Read()
{
    if (const Button* chosen = Chosen()) _value.cached = chosen->value;
}

bool KivRadioRow::IsSender(const KivCommand* from) const
{
    return from && std::any_of(_buttons.begin(), _buttons.end(),
                               [from](const Button& button) { return button.button.Get() == from; });
}

bool KivRadioRow::ReadToStore()
{
    const int before = _value.cached;
    Read();
    return _value.cached != before;
}

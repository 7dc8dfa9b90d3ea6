#include "KivPageRows.h"

#include "KivDrwSettingsServices.h"

#include <limits>
#include <utility>

namespace {

int Whole(float value)
{
    // The greatest float below 2^31; a cast of anything beyond is undefined.
    constexpr float kGreatest = 2147483520.0F;
    if (!(value > -kGreatest)) return std::numeric_limits<int>::min();
    return value < kGreatest ? static_cast<int>(value) : std::numeric_limits<int>::max();
}

} // namespace

KivCheckRow::KivCheckRow(KivDrwLockCheckButton* button, KivCachedValue<unsigned char>& value, Rule rule)
    : KivPageRow(value, std::move(rule)), _button(button), _value(value)
{}

void KivCheckRow::Show()
{
    KivDrwSettingsServices::UpdateCheckButton(_button.Get(), _value.cached);
}

bool KivCheckRow::Store(KivCommand* from)
{
    unsigned char value = 0;
    if (KivDrwSettingsServices::GetValueFromCheckButton(_button.Get(), from, value) != S_OK) return false;
    _value.Store(value);
    return true;
}

KivMeasureRow::KivMeasureRow(KivDrwLockSpinner* spinner, KivCachedValue<double>& value, double shownPerStored,
                             double storedPerShown, Rule rule)
    : KivPageRow(value, std::move(rule)), _spinner(spinner), _value(value), _shownPerStored(shownPerStored),
      _storedPerShown(storedPerShown)
{}

void KivMeasureRow::Show()
{
    KivDrwSettingsServices::UpdateSpinner(_spinner.Get(), _value.cached * _shownPerStored);
}

bool KivMeasureRow::Store(KivCommand* from)
{
    double value = 0.0;
    if (KivDrwSettingsServices::GetValueFromSpinner(_spinner.Get(), from, _storedPerShown, value) != S_OK)
        return false;
    _value.Store(value);
    return true;
}

KivCountRow::KivCountRow(KivDrwLockSpinner* spinner, KivCachedValue<int>& value, Rule rule)
    : KivPageRow(value, std::move(rule)), _spinner(spinner), _value(value)
{}

void KivCountRow::Show()
{
    if (_spinner) _spinner->SetCurrentValue(static_cast<float>(_value.cached), 0);
}

bool KivCountRow::Store(KivCommand* from)
{
    if (!_spinner || !from || _spinner->GetDialog() != from) return false;
    _value.Store(Whole(_spinner->GetCurrentValue()));
    Show();
    return true;
}

KivColourRow::KivColourRow(KivDrwLockComboColor* combo, KivCachedValue<KivPageColour>& value, Rule rule)
    : KivPageRow(value, std::move(rule)), _combo(combo), _value(value)
{}

void KivColourRow::Show()
{
    KivDrwSettingsServices::UpdateComboColor(_combo.Get(), _value.cached.red, _value.cached.green,
                                             _value.cached.blue);
}

bool KivColourRow::Store(KivCommand* from)
{
    KivPageColour value;
    if (KivDrwSettingsServices::GetValueFromComboColor(_combo.Get(), from, value.red, value.green,
                                                       value.blue) != S_OK)
        return false;
    _value.Store(value);
    return true;
}

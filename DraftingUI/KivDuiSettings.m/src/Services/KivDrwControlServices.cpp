#include "KivDrwControlServices.h"

#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgCombo.h"
#include "Lock/KivDrwLockCombos.h"
#include "Lock/KivDrwLockControls.h"
#include "Parameter/KivControlUnit.h"
#include "Parameter/KivParmEngine.h"
#include "Parameter/KivParmMagnitude.h"
#include "Settings/KivDrwStoredColor.h"

#include <algorithm>

namespace {

void SetUnit(KivDlgControl* control, int precision, const char* type, KivDlgMagnitude magnitude,
             KivDlgUnit fallback)
{
    if (!control) return;
    const KivParmMagnitude* found = KivParmEngine::Instance().Magnitude(type);
    const KivParmUnit* current = found ? found->CurrentUnit() : nullptr;
    if (!current) {
        control->SetUnit(fallback);
    } else if (const KivControlUnit* unit = KivControlUnit::Named(current->Name().View(), magnitude)) {
        control->SetUnit(unit->number);
    }
    control->SetPrecision(precision, 0);
}

KivDlgControl* Inner(KivDrwLockControl* wrapper)
{
    return wrapper ? wrapper->GetControl() : nullptr;
}

template <class Combo> void Deliver(Combo* combo, int& r, int& g, int& b)
{
    if (!combo) return;
    unsigned int red = 0, green = 0, blue = 0;
    combo->GetSelectedColor(&red, &green, &blue);
    r = static_cast<int>(red);
    g = static_cast<int>(green);
    b = static_cast<int>(blue);
}

template <class Combo> void Select(Combo* combo, int r, int g, int b)
{
    if (combo)
        combo->SetSelectedColor(static_cast<unsigned int>(r), static_cast<unsigned int>(g),
                                static_cast<unsigned int>(b));
}

template <class Value, class Same> void SelectOrInsert(KivDlgCombo* combo, const Value& value, Same same)
{
    if (!combo) return;
    const int count = combo->GetLineCount();
    int before = count; // the first line that is greater
    Value line{};
    for (int i = 0; i < count; ++i) {
        if (!combo->GetLine(line, i)) continue;
        if (same(line, value)) {
            combo->SetSelect(i);
            return;
        }
        if (before == count && value < line) before = i;
    }
    combo->SetLine(value, before, KivDlgCombo::Mode::Insert);
    combo->SetSelect(before);
}

bool Sent(const KivDrwLockDialog* wrapper, const KivCommand* from)
{
    return wrapper && from && wrapper->GetDialog() == from;
}

} // namespace

void DrwOptionsServices::SetControlUnitToPqeLength(KivDlgControl* control, int precision)
{
    SetUnit(control, precision, KivParmDictionary::LengthType, KivDlgMagnitudeLength, KivDlgUnitMillimeter);
}
void DrwOptionsServices::SetControlUnitToPqeLength(KivDrwLockControl* control, int precision)
{
    SetControlUnitToPqeLength(Inner(control), precision);
}
void DrwOptionsServices::SetControlUnitToPqeAngle(KivDlgControl* control, int precision)
{
    SetUnit(control, precision, KivParmDictionary::AngleType, KivDlgMagnitudeAngle, KivDlgUnitDegree);
}
void DrwOptionsServices::SetControlUnitToPqeAngle(KivDrwLockControl* control, int precision)
{
    SetControlUnitToPqeAngle(Inner(control), precision);
}

void GetColorRGB(KivComboColor* combo, int& r, int& g, int& b)
{
    Deliver(combo, r, g, b);
}
void GetColorRGB(KivDrwLockComboColor* combo, int& r, int& g, int& b)
{
    Deliver(combo, r, g, b);
}
void SetColorRGB(KivComboColor* combo, const int& r, const int& g, const int& b)
{
    Select(combo, r, g, b);
}
void SetColorRGB(KivDrwLockComboColor* combo, const int& r, const int& g, const int& b)
{
    Select(combo, r, g, b);
}

void SetField(KivDlgCombo* combo, double value)
{
    SelectOrInsert(combo, value, [](double a, double b) { return a == b; });
}

void SetField(KivDlgCombo* combo, const KivUnicodeString& text)
{
    SelectOrInsert(combo, text,
                   [](const KivUnicodeString& a, const KivUnicodeString& b) { return a.Compare(b) == 0; });
}

double GetThicknessMM(KivComboWeight* combo)
{
    if (!combo) return 0.0;
    const unsigned int weight = combo->GetSelect();
    return KivComboWeight::kMillimeters[weight < KivComboWeight::kMillimeters.size() ? weight : 0];
}

void SetThicknessMM(KivComboWeight* combo, const int& millimeters)
{
    if (combo) return;
    // The smallest weight that is not thinner, kept for the day when the guard is turned round: until then
    // there is no combo here to select it in.
    const auto& table = KivComboWeight::kMillimeters;
    const auto found = std::lower_bound(table.begin(), table.end() - 1, static_cast<double>(millimeters));
    [[maybe_unused]] const auto weight = static_cast<unsigned int>(found - table.begin());
}

HRESULT KivDrwSettingsServices::GetValueFromCheckButton(KivDrwLockCheckButton* button, KivCommand* from,
                                                        unsigned char& value)
{
    if (!Sent(button, from)) return E_FAIL;
    value = button->GetState() == KivDlgChecked;
    return S_OK;
}

HRESULT KivDrwSettingsServices::UpdateCheckButton(KivDrwLockCheckButton* button, unsigned char value)
{
    if (!button) return E_FAIL;
    button->SetState(value ? KivDlgChecked : KivDlgUnchecked, 0);
    return S_OK;
}

HRESULT KivDrwSettingsServices::GetValueFromComboColor(KivDrwLockComboColor* combo, KivCommand* from, int& r,
                                                       int& g, int& b)
{
    if (!Sent(combo, from)) return E_FAIL;
    int red = 0, green = 0, blue = 0;
    GetColorRGB(combo, red, green, blue);
    if (!KivDrwIsColor(red, green, blue)) return E_FAIL;
    r = red;
    g = green;
    b = blue;
    return S_OK;
}

HRESULT KivDrwSettingsServices::UpdateComboColor(KivDrwLockComboColor* combo, int r, int g, int b)
{
    if (!combo || !KivDrwIsColor(r, g, b)) return E_FAIL;
    SetColorRGB(combo, r, g, b);
    return S_OK;
}

HRESULT KivDrwSettingsServices::GetValueFromSpinner(KivDrwLockSpinner* spinner, KivCommand* from,
                                                    const double& factor, double& value)
{
    if (!Sent(spinner, from)) return E_FAIL;
    value = factor * spinner->GetValue();
    return S_OK;
}

HRESULT KivDrwSettingsServices::UpdateSpinner(KivDrwLockSpinner* spinner, const double& value)
{
    if (!spinner) return E_FAIL;
    spinner->SetValue(value, 0);
    return S_OK;
}

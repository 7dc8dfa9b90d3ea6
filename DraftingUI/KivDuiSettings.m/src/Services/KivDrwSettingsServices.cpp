#include "KivDrwSettingsServices.h"

#include "KivDrwColorServices.h"
#include "Lock/KivDrwLockCheckButton.h"
#include "Lock/KivDrwLockComboColor.h"
#include "Lock/KivDrwLockSpinner.h"
#include "Settings/KivDrwStoredColor.h"

namespace {

bool Sent(const KivDrwLockDialog* wrapper, const KivCommand* from)
{
    return wrapper && from && wrapper->GetDialog() == from;
}

} // namespace

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

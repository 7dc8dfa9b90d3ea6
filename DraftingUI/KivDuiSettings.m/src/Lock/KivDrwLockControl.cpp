#include "Lock/KivDrwLockControl.h"

KivDlgControl* KivDrwLockControl::Control() const
{
    KivDialog* dialog = GetDialog();
    return dialog && dialog->IsAKindOf(KivDlgControl::ClassName()) ? static_cast<KivDlgControl*>(dialog)
                                                                   : nullptr;
}

void KivDrwLockControl::SetUnit(KivDlgControl::KivDlgUnit unit)
{
    if (KivDlgControl* control = Control()) control->SetUnit(unit);
}
KivDlgControl::KivDlgUnit KivDrwLockControl::GetUnit() const
{
    const KivDlgControl* control = Control();
    return control ? control->GetUnit() : KivDlgUnitMillimeter;
}

void KivDrwLockControl::SetPrecision(int precision)
{
    if (KivDlgControl* control = Control()) control->SetPrecision(precision, 0);
}
int KivDrwLockControl::GetPrecision() const
{
    const KivDlgControl* control = Control();
    return control ? control->GetPrecision() : 1;
}

void KivDrwLockControl::SetMagnitude(KivDlgControl::KivDlgMagnitude magnitude)
{
    if (KivDlgControl* control = Control()) control->SetMagnitude(magnitude);
}
KivDlgControl::KivDlgMagnitude KivDrwLockControl::GetMagnitude() const
{
    const KivDlgControl* control = Control();
    return control ? control->GetMagnitude() : KivDlgMagnitudeLength;
}

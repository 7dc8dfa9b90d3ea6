#include "Lock/KivDrwLockControls.h"

KivDlgControl* KivDrwLockControl::GetControl() const
{
    KivDialog* dialog = GetDialog();
    return dialog && dialog->IsAKindOf(KivDlgControl::ClassName()) ? static_cast<KivDlgControl*>(dialog)
                                                                   : nullptr;
}

void KivDrwLockControl::SetUnit(KivDlgControl::KivDlgUnit unit)
{
    if (KivDlgControl* control = GetControl()) control->SetUnit(unit);
}
KivDlgControl::KivDlgUnit KivDrwLockControl::GetUnit() const
{
    const KivDlgControl* control = GetControl();
    return control ? control->GetUnit() : KivDlgUnitMillimeter;
}

void KivDrwLockControl::SetPrecision(int precision)
{
    if (KivDlgControl* control = GetControl()) control->SetPrecision(precision, 0);
}
int KivDrwLockControl::GetPrecision() const
{
    const KivDlgControl* control = GetControl();
    return control ? control->GetPrecision() : 1;
}

void KivDrwLockControl::SetMagnitude(KivDlgControl::KivDlgMagnitude magnitude)
{
    if (KivDlgControl* control = GetControl()) control->SetMagnitude(magnitude);
}
KivDlgControl::KivDlgMagnitude KivDrwLockControl::GetMagnitude() const
{
    const KivDlgControl* control = GetControl();
    return control ? control->GetMagnitude() : KivDlgMagnitudeLength;
}

unsigned long KivDrwLockCheckButton::GetState() const
{
    return Wrapped() ? Wrapped()->GetState() : KivDlgUnchecked;
}

void KivDrwLockCheckButton::SetState(unsigned long state, int notify)
{
    if (Wrapped()) Wrapped()->SetState(state, notify);
}

KivNotification* KivDrwLockCheckButton::GetChkBModifyNotification() const
{
    return Wrapped() ? Wrapped()->GetChkBModifyNotification() : nullptr;
}

KivNotification* KivDrwLockCheckButton::GetChkBDoubleClickNotification() const
{
    return Wrapped() ? Wrapped()->GetChkBDoubleClickNotification() : nullptr;
}

float KivDrwLockSpinner::GetCurrentValue() const
{
    return Wrapped() ? Wrapped()->GetCurrentValue() : 0.0F;
}
void KivDrwLockSpinner::SetCurrentValue(float value, int notify)
{
    if (Wrapped()) Wrapped()->SetCurrentValue(value, notify);
}
double KivDrwLockSpinner::GetValue() const
{
    return Wrapped() ? Wrapped()->GetValue() : 0.0;
}
void KivDrwLockSpinner::SetValue(double value, int notify)
{
    if (Wrapped()) Wrapped()->SetValue(value, notify);
}

void KivDrwLockSpinner::GetRange(float& minimum, float& maximum, int& steps) const
{
    if (Wrapped()) Wrapped()->GetRange(minimum, maximum, steps);
}
void KivDrwLockSpinner::SetRange(float minimum, float maximum, int steps)
{
    if (Wrapped()) Wrapped()->SetRange(minimum, maximum, steps, 1);
}
void KivDrwLockSpinner::GetRange(float& minimum, float& maximum, float& step) const
{
    if (Wrapped()) Wrapped()->GetRange(minimum, maximum, step);
}
void KivDrwLockSpinner::SetRange(float minimum, float maximum, float step)
{
    if (Wrapped()) Wrapped()->SetRange(minimum, maximum, step, 1);
}
void KivDrwLockSpinner::GetMinMaxStep(double& minimum, double& maximum, double& step) const
{
    if (Wrapped()) Wrapped()->GetMinMaxStep(minimum, maximum, step);
}
void KivDrwLockSpinner::SetMinMaxStep(double minimum, double maximum, double step)
{
    if (Wrapped()) Wrapped()->SetMinMaxStep(minimum, maximum, step, 1);
}

const char* KivDrwLockSpinner::GetFormat() const
{
    return Wrapped() ? Wrapped()->GetFormat() : nullptr;
}
void KivDrwLockSpinner::SetFormat(const char* format)
{
    if (Wrapped()) Wrapped()->SetFormat(format);
}
int KivDrwLockSpinner::GetVisibleTextWidth() const
{
    return Wrapped() ? Wrapped()->GetVisibleTextWidth() : 0;
}
void KivDrwLockSpinner::SetVisibleTextWidth(int characters)
{
    if (Wrapped()) Wrapped()->SetVisibleTextWidth(characters);
}
KivNotification* KivDrwLockSpinner::GetSpinnerModifyNotification() const
{
    return Wrapped() ? Wrapped()->GetSpinnerModifyNotification() : nullptr;
}

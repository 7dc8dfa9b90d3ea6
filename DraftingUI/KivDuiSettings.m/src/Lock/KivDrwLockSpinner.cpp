#include "Lock/KivDrwLockSpinner.h"

KivDrwLockSpinner::KivDrwLockSpinner(KivSettingRepository* repository, const KivString& attributeName,
                                     KivDialog* parent, const KivString& name, unsigned long style)
    : KivDrwLockControlOf(repository, attributeName, parent, name)
{
    Wrap(MakeControl(name, style));
}

KivDrwLockSpinner::KivDrwLockSpinner(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                                     unsigned long style)
    : KivDrwLockControlOf(parent, name, info)
{
    Wrap(MakeControl(name, style));
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

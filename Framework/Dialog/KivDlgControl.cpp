#include "Dialog/KivDlgControl.h"

void KivDlgControl::SetUnit(KivDlgUnit unit)
{
    _unit = unit;
    Changed();
}

void KivDlgControl::SetPrecision(int precision, unsigned char)
{
    _precision = precision;
    Changed();
}

void KivDlgControl::SetMagnitude(KivDlgMagnitude magnitude)
{
    _magnitude = magnitude;
    Changed();
}

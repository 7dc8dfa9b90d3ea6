#pragma once

#include "Dialog/KivDialog.h"
#include "Parameter/KivDlgUnit.h"

// The base of controls that hold a value: with the unit, precision and magnitude in which a number is shown.
class KivDlgControl : public KivClass<KivDlgControl, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgControl";
    using KivDlgUnit = ::KivDlgUnit;
    using KivDlgMagnitude = ::KivDlgMagnitude;
    using KivClass::KivClass;

    void SetUnit(KivDlgUnit unit);
    KivDlgUnit GetUnit() const { return _unit; }
    // How many decimals are shown at most; the second argument is the framework's.
    void SetPrecision(int precision, unsigned char reserved);
    int GetPrecision() const { return _precision; }
    void SetMagnitude(KivDlgMagnitude magnitude);
    KivDlgMagnitude GetMagnitude() const { return _magnitude; }

private:
    KivDlgUnit _unit = KivDlgUnitNone;
    KivDlgMagnitude _magnitude = KivDlgMagnitudeNone;
    int _precision = 3;
};

#pragma once

#include "KivSpinnerSetup.h"

// The spinners of lengths and angles that pages have in common.

// A length of 0 or more, stored in millimeters and shown in meters. The step is in millimeters.
constexpr KivSpinnerSetup KivMillimeters(double step)
{
    return {.magnitude = KivDlgMagnitudeLength,
            .minimum = 0.0,
            .maximum = 1.0e12,
            .step = step * 0.001,
            .shownPerStored = 0.001,
            .storedPerShown = 1000.0};
}

// An angle from 0 to a full turn, stored in degrees and shown in radians. The step is in degrees.
constexpr KivSpinnerSetup KivDegrees(double step)
{
    constexpr double kRadians = 0.017453292519943295;
    return {.magnitude = KivDlgMagnitudeAngle,
            .minimum = 0.0,
            .maximum = 360.0 * kRadians,
            .step = step * kRadians,
            .shownPerStored = kRadians,
            .storedPerShown = 57.29577951308232};
}

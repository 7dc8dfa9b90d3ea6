#pragma once

#include "Parameter/KivControlUnit.h"

#include <QString>

// Measures of the sheet (mm and degrees) in the units that the user has chosen.
class SheetUnit {
public:
    // The current unit of length; millimeters when there is none that can be shown.
    static const KivControlUnit& Length();

    // With its suffix, and at most so many decimals.
    static QString Print(double millimeters, int decimals);
    static QString PrintAngle(double degrees);
};

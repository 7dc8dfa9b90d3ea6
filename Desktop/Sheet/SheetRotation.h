#pragma once

#include "Sheet/SheetStyle.h"

// How a view on the sheet turns; angles in degrees, anticlockwise, from 0 up to 360.
class SheetRotation {
public:
    static double Normal(double angle);

    // Where a view comes to rest that a hand turns to this angle: on a multiple of the snap angle, always or
    // only while Shift is held, as the style says.
    static double Dragged(double angle, const SheetStyle& style, bool isShiftHeld);

    // One step of the keyboard: to the next multiple of the snap angle in that direction, or by one degree
    // while rotation is free. The direction is 1 or -1.
    static double Stepped(double angle, const SheetStyle& style, int direction);
};

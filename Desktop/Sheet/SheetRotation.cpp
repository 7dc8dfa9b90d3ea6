#include "Sheet/SheetRotation.h"

#include <cmath>

double SheetRotation::Normal(double angle)
{
    if (!std::isfinite(angle)) return 0.0;
    const double rest = std::fmod(angle, 360.0);
    const double normal = rest < 0.0 ? rest + 360.0 : rest;
    return normal >= 360.0 ? 0.0 : normal; // a tiny negative rest rounds up to the full turn
}

double SheetRotation::Dragged(double angle, const SheetStyle& style, bool isShiftHeld)
{
    const bool snaps = style.snapAngle > 0.0 && (style.alwaysSnapsAngle || isShiftHeld);
    if (!snaps) return Normal(angle);
    // Measured both ways from 0, so that a snap angle that does not divide the circle is symmetrical.
    const double signedAngle = std::remainder(angle, 360.0);
    return Normal(std::round(signedAngle / style.snapAngle) * style.snapAngle);
}

double SheetRotation::Stepped(double angle, const SheetStyle& style, int direction)
{
    const double step = style.snapAngle > 0.0 ? style.snapAngle : 1.0;
    // The tolerance keeps an angle that rounding left beside its multiple from stepping onto the same one.
    const double position = angle / step + direction * 1.0e-9;
    return Normal((direction > 0 ? std::floor(position) + 1.0 : std::ceil(position) - 1.0) * step);
}

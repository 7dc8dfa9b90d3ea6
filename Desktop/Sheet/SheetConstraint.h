#pragma once

#include <QPainterPath>
#include <array>

// A kind of geometric constraint.
enum class SheetConstraint {
    Horizontal,
    Vertical,
    Parallel,
    Perpendicular,
    Concentric,
    Coincident,
    Tangent,
    Symmetric,
};
inline constexpr std::size_t kSheetConstraints = 8;

// The symbol of a kind, from -1 to 1 in both directions, y up.
QPainterPath SheetSymbol(SheetConstraint kind);

#pragma once

#include <cmath>

// A place, or a direction, in the world of a 2D viewer: x to the right, y upwards, in whatever unit its user
// draws in.
struct Kiv2DPoint {
    double x = 0.0;
    double y = 0.0;

    bool IsFinite() const { return std::isfinite(x) && std::isfinite(y); }
    friend bool operator==(const Kiv2DPoint&, const Kiv2DPoint&) = default;
};

// The part of the world that a viewer shows.
struct Kiv2DRectangle {
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;

    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
    friend bool operator==(const Kiv2DRectangle&, const Kiv2DRectangle&) = default;
};

#pragma once

#include <vector>

// The lines of a sheet's grid in one direction, which start at 0.
class SheetGrid {
public:
    // Spacing of the primary lines in mm (0: there is no grid) and the parts that it is divided into.
    SheetGrid(double spacing, int parts) : _spacing(spacing), _parts(parts) {}

    struct Line {
        double at; // mm
        bool primary;
    };
    // The lines between two positions (mm) that can be told apart at so many pixels a millimeter: graduations
    // are left out when they would be closer than kClosest pixels, then primary lines are thinned in steps of
    // 2, 5, 10, … Never more than (to - from) * pixelsPerMm / kClosest + 2 lines.
    std::vector<Line> Lines(double from, double to, double pixelsPerMm) const;

    // The grid point (graduations too) nearest to a position on a sheet from 0 to length; the position itself
    // without a grid.
    double Nearest(double position, double length) const;

    static constexpr double kClosest = 4.0;

private:
    double _spacing;
    int _parts;
};

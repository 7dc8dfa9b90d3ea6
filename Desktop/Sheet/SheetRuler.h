#pragma once

#include <QString>
#include <vector>

// The marks of a ruler in the user's unit of length.
class SheetRuler {
public:
    struct Mark {
        double at; // mm
        int rank;  // 0: with its number, 1: half, 2: fine
        QString label;
    };
    // The marks from one position to another (mm) at so many pixels a millimeter, numbers at least
    // labelPixels apart.
    static std::vector<Mark> Marks(double from, double to, double pixelsPerMm, double labelPixels);
};

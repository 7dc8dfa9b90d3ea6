#pragma once

#include <QColor>
#include <QLinearGradient>

// The colors of one sheet: its surface, and lines that can be told from it whatever color it has.
class SheetColors {
public:
    SheetColors(const QColor& sheet, bool graduated);

    const QColor& Sheet() const { return _sheet; }
    // What the surface is filled with, from the top of the sheet to its bottom.
    QBrush Surface(double top, double bottom) const;

    // Black or white, whichever stands out more.
    const QColor& Ink() const { return _ink; }
    // A line between the sheet's color (0) and ink (1).
    QColor Shade(double strength) const;
    // The same as ink that lets the surface through, which a graduated one needs.
    QColor Veil(double strength) const;
    // A colored line, drawn towards ink until it stands out from all of the surface.
    QColor Accent(const QColor& wanted) const;

    // How far two colors are apart for the eye: 1 (the same) to 21 (black and white).
    static double Contrast(const QColor& one, const QColor& other);

private:
    double WorstContrast(const QColor& line) const;

    QColor _sheet;
    QColor _end; // the other end of a graduated surface
    QColor _ink;
};

#pragma once

#include "Sheet/SheetCamera.h"

#include <QFont>
#include <QPalette>
#include <QString>

#include <optional>
#include <vector>

class QPainter;

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

// The two rulers at the top and at the left of a sheet's window, in the user's unit of length.
class SheetRulers {
public:
    SheetRulers(const SheetCamera& camera, const QFont& font, const QPalette& palette);

    static int Thickness(const QFont& font);

    // Around the camera's area; the cursor's position in the window is marked on both.
    void Paint(QPainter& painter, std::optional<QPointF> cursor) const;

private:
    void PaintOne(QPainter& painter, Qt::Orientation orientation) const;

    const SheetCamera& _camera;
    QFont _font;
    QPalette _palette;
    int _thick;
};

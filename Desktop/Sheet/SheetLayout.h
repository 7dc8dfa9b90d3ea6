#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <span>

// A size of paper.
struct SheetFormat {
    const char* name;
    double longSide, shortSide; // mm

    static std::span<const SheetFormat> All();
    // The format of a name, A3 for any other.
    static const SheetFormat& Named(const QString& name);

    QSizeF Size(bool isLandscape) const;
};

// Where the sample drawing has its pieces on a sheet: everything in mm of paper, y up.
struct SheetLayout {
    explicit SheetLayout(QSizeF sheet);

    QRectF border; // the frame inside the edge of the sheet
    QRectF titleBlock;
    QRectF detail;        // the small detail sheet
    QPointF viewCenter;   // the origin of the sample view
    double viewScale;     // of paper to part: 0.5, 1 or 2
    QPointF sketchCenter; // the sketch has the scale of the view

    // The frame of the sample view around its center, before it is turned.
    QRectF ViewFrame() const;
};

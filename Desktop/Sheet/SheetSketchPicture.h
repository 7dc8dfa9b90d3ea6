#pragma once

#include "Common/SheetColors.h"
#include "Sheet/SheetCamera.h"
#include "Sheet/SheetLayout.h"
#include "Sheet/SheetStyle.h"

#include <optional>

class QPainter;

// Draws the sample sketch of a sheet, as a camera sees it.
class SheetSketchPicture {
public:
    SheetSketchPicture(const SheetSketchStyle& style, const SheetCamera& camera, const SheetColors& colors);

    // Into the window's coordinates. The width is that of visible lines, in pixels.
    void Paint(QPainter& painter, double width) const;
    // What a pointer at a position of the window would pick, if anything.
    void PaintPick(QPainter& painter, QPointF pointer) const;

    // The frame of the sketch in the window.
    QRectF Frame() const;

private:
    void PaintElements(QPainter& painter, double width) const;
    void PaintPoints(QPainter& painter) const;
    void PaintSymbols(QPainter& painter) const;
    void PaintPosition(QPainter& painter) const;
    void PaintLegend(QPainter& painter, double width) const;
    void PaintText(QPainter& painter, QPointF at, double height, Qt::Alignment alignment,
                   const QString& text) const;

    std::optional<QPointF> Support(QPointF pointer) const;
    std::optional<QPointF> Aligned(QPointF pointer) const;
    // Pixels for a mm of the sketch.
    double Scale() const { return _layout.viewScale * _camera.PixelsPerMm(); }

    const SheetSketchStyle& _style;
    const SheetCamera& _camera;
    const SheetColors& _colors;
    SheetLayout _layout;
    QTransform _toWindow; // from the sketch's own mm
};

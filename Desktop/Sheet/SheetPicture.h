#pragma once

#include "Common/SheetColors.h"
#include "Sheet/SheetCamera.h"
#include "Sheet/SheetLayout.h"
#include "Sheet/SheetStyle.h"

#include <QPolygonF>
#include <QString>

class QPainter;

// Draws a sheet and what is on it, as a camera sees it: surface, grid, sample view, sample sketch,
// detail sheet, title block.
class SheetPicture {
public:
    SheetPicture(const SheetStyle& style, const SheetSketchStyle& sketch, const SheetLook& look,
                 const SheetCamera& camera, double rotation, const QString& format);

    // Into the window's coordinates.
    void Paint(QPainter& painter) const;
    // What a pointer at a position of the window would pick in the sketch; nothing while views are dimmed.
    void PaintPick(QPainter& painter, QPointF pointer) const;

    // Places of the sample view in the window.
    QPolygonF ViewFrame() const;
    QPointF ViewCenter() const;
    QRectF SketchFrame() const;

private:
    void PaintSurface(QPainter& painter, const QRectF& sheet, const SheetColors& colors) const;
    void PaintGrid(QPainter& painter, const QRectF& part, const SheetColors& colors) const;
    void PaintBorder(QPainter& painter) const;
    void PaintView(QPainter& painter) const;
    void PaintPart(QPainter& painter, const QTransform& toWindow, double scale,
                   const SheetColors& colors) const;
    void PaintDimensions(QPainter& painter) const;
    void PaintAxis(QPainter& painter) const;
    void PaintDetail(QPainter& painter) const;
    // A text around or beside a position in the window, so many mm of paper high and turned by an angle.
    // Texts too small to be read are left out.
    void PaintText(QPainter& painter, QPointF at, double height, double angle, Qt::Alignment alignment,
                   const QString& text) const;

    // From the part's own mm around its origin to the window.
    QTransform PartTransform() const;
    QRectF ToWindow(const QRectF& paper) const;
    QRectF VisiblePaper(const QRectF& paper) const;
    double Thick() const;
    double PartLine() const;

    const SheetStyle& _style;
    const SheetSketchStyle& _sketch;
    const SheetLook& _look;
    const SheetCamera& _camera;
    double _rotation;
    QString _format;
    SheetLayout _layout;
    SheetColors _colors, _detailColors;
};

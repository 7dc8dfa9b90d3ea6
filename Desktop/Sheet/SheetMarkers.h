#pragma once

#include "Common/SheetColors.h"

#include <QFont>
#include <QPalette>
#include <QPointF>
#include <QPolygonF>
#include <QString>

class QPainter;

// What a hand works with on a sheet: the frame and handle of the selected view, the angle while it is turned,
// the cross-hairs of the cursor.
class SheetMarkers {
public:
    SheetMarkers(const QPalette& palette, const QFont& font, const SheetColors& sheet)
        : _palette(palette), _font(font), _sheet(sheet)
    {}

    // The middle of the handle beside a view's frame, which is given from its lower left corner
    // anticlockwise.
    static QPointF HandleAt(const QPolygonF& frame);
    static constexpr double kHandleRadius = 8.0;

    enum class HandleState { Idle, Hot, Dragged };
    void PaintHandle(QPainter& painter, const QPolygonF& frame, HandleState state) const;
    // A bubble with the angle, beside the handle, that stays inside of the area.
    void PaintAngle(QPainter& painter, QPointF handle, const QRectF& area, const QString& angle) const;
    void PaintTurn(QPainter& painter, QPointF center, QPointF handle, double angle) const;
    // A square around the middle says that the position is a grid point.
    void PaintCross(QPainter& painter, QPointF at, bool isSnapped) const;

private:
    QColor Marked() const { return _palette.color(QPalette::Highlight); }
    // The same where it has to stand out from the sheet.
    QColor MarkedOnSheet() const { return _sheet.Accent(Marked()); }

    QPalette _palette;
    QFont _font;
    SheetColors _sheet;
};

#include "Native/NativeSymbolCombo.h"

#include "Common/IconEngine.h"

#include <QPainter>

namespace {

constexpr qreal kGrid = 16.0; // the drawings are made on a grid of so many units
constexpr QPointF kMiddle(8.0, 8.0);

void DrawPlus(QPainter& painter, qreal arm)
{
    painter.drawLine(QPointF(8.0 - arm, 8.0), QPointF(8.0 + arm, 8.0));
    painter.drawLine(QPointF(8.0, 8.0 - arm), QPointF(8.0, 8.0 + arm));
}

void DrawCross(QPainter& painter, qreal arm)
{
    painter.drawLine(QPointF(8.0 - arm, 8.0 - arm), QPointF(8.0 + arm, 8.0 + arm));
    painter.drawLine(QPointF(8.0 - arm, 8.0 + arm), QPointF(8.0 + arm, 8.0 - arm));
}

void DrawDot(QPainter& painter, qreal radius)
{
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(kMiddle, radius, radius);
}

// By the symbol's line in the combo.
constexpr void (*kDrawings[])(QPainter&) = {
    [](QPainter& painter) { DrawCross(painter, 4.5); },
    [](QPainter& painter) { DrawPlus(painter, 6.0); },
    [](QPainter& painter) {
        painter.drawEllipse(kMiddle, 6.0, 6.0);
        painter.drawEllipse(kMiddle, 2.8, 2.8);
    },
    [](QPainter& painter) {
        painter.drawEllipse(kMiddle, 4.2, 4.2);
        DrawPlus(painter, 7.0);
    },
    [](QPainter& painter) { painter.drawEllipse(kMiddle, 5.5, 5.5); },
    [](QPainter& painter) { painter.drawRect(QRectF(3.0, 3.0, 10.0, 10.0)); },
    [](QPainter& painter) {
        DrawPlus(painter, 6.0);
        DrawCross(painter, 4.2);
    },
    [](QPainter& painter) { DrawDot(painter, 4.0); },
    [](QPainter& painter) { DrawDot(painter, 2.0); },
};

} // namespace

QIcon NativeSymbolCombo::LineIcon(int line) const
{
    if (line < 0 || line >= static_cast<int>(std::size(kDrawings))) return {};
    return IconEngine::Icon(
        [draw = kDrawings[line]](QPainter& painter, const QRectF& r, const QColor& ink) {
            painter.translate(r.topLeft());
            painter.scale(r.width() / kGrid, r.height() / kGrid);
            painter.setPen(QPen(ink, 1.3, Qt::SolidLine, Qt::RoundCap));
            draw(painter);
        },
        IconEngine::Background::List);
}

#include "Sheet/SheetMarkers.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>
#include <algorithm>

namespace {

constexpr double kStalk = 26.0; // pixels from the frame to the handle

QPointF TopMiddle(const QPolygonF& frame)
{
    return (frame[2] + frame[3]) / 2.0;
}

} // namespace

QPointF SheetMarkers::HandleAt(const QPolygonF& frame)
{
    // The direction from the lower edge to the upper one, wherever the view has turned to.
    QLineF up(frame[1], frame[2]);
    up.setLength(kStalk);
    return TopMiddle(frame) + up.p2() - up.p1();
}

void SheetMarkers::PaintHandle(QPainter& painter, const QPolygonF& frame, HandleState state) const
{
    const QPointF at = HandleAt(frame);
    painter.setPen(QPen(MarkedOnSheet(), 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(frame);
    painter.drawLine(TopMiddle(frame), at);
    painter.setBrush(state == HandleState::Idle ? _palette.color(QPalette::Base) : Marked());
    const double radius = state == HandleState::Idle ? kHandleRadius : kHandleRadius + 1.5;
    painter.drawEllipse(at, radius, radius);
    // A bent arrow on the handle says that it turns.
    painter.setPen(
        QPen(state == HandleState::Idle ? Marked() : _palette.color(QPalette::HighlightedText), 1.4));
    const QRectF bend(at.x() - 4.0, at.y() - 4.0, 8.0, 8.0);
    painter.drawArc(bend, 40 * 16, 270 * 16);
    painter.drawLine(at + QPointF(3.1, -2.6), at + QPointF(3.4, -5.6));
    painter.drawLine(at + QPointF(3.1, -2.6), at + QPointF(0.2, -3.0));
}

void SheetMarkers::PaintTurn(QPainter& painter, QPointF center, QPointF handle, double angle) const
{
    const double radius = QLineF(center, handle).length() * 0.5;
    const QRectF box(center.x() - radius, center.y() - radius, 2.0 * radius, 2.0 * radius);
    const double shown = angle > 180.0 ? angle - 360.0 : angle;
    QColor fill = MarkedOnSheet();
    fill.setAlphaF(0.16F);
    painter.setPen(QPen(MarkedOnSheet(), 1.2));
    painter.setBrush(fill);
    painter.drawPie(box, 90 * 16, static_cast<int>(shown * 16.0));
}

void SheetMarkers::PaintAngle(QPainter& painter, QPointF handle, const QRectF& area,
                              const QString& angle) const
{
    QFont font = _font;
    font.setBold(true);
    const QSizeF size = QFontMetricsF(font).size(0, angle) + QSizeF(16.0, 8.0);
    QRectF bubble(handle + QPointF(16.0, -size.height() / 2.0), size);
    bubble.moveLeft(
        std::clamp(bubble.left(), area.left(), std::max(area.left(), area.right() - size.width())));
    bubble.moveTop(std::clamp(bubble.top(), area.top(), std::max(area.top(), area.bottom() - size.height())));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Marked());
    painter.drawRoundedRect(bubble, 4.0, 4.0);
    painter.setFont(font);
    painter.setPen(_palette.color(QPalette::HighlightedText));
    painter.drawText(bubble, Qt::AlignCenter, angle);
}

void SheetMarkers::PaintCross(QPainter& painter, QPointF at, bool isSnapped) const
{
    constexpr double kArm = 13.0, kGap = 4.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(_sheet.Accent(QColor(0xd0, 0x40, 0x00)), 1.4));
    for (const QPointF& along :
         {QPointF(1.0, 0.0), QPointF(-1.0, 0.0), QPointF(0.0, 1.0), QPointF(0.0, -1.0)})
        painter.drawLine(at + along * kGap, at + along * kArm);
    if (isSnapped)
        painter.drawRect(QRectF(at - QPointF(kGap, kGap), QSizeF(2.0 * kGap, 2.0 * kGap)));
    else
        painter.drawPoint(at);
}

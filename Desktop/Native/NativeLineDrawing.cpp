#include "Native/NativeLineDrawing.h"

#include "Dialog/KivComboDashed.h"

#include <QComboBox>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>

namespace {

constexpr qreal kIconHeight = 16.0;   // the height, in units, that drawings are made for
constexpr qreal kUnitsPerInch = 96.0; // a unit is a pixel at scale 1
constexpr qreal kMillimetersPerInch = 25.4;

// Lengths of dashes and gaps, in widths of the line.
QList<qreal> Pattern(unsigned int type)
{
    switch (type) {
    case 2:
        return {1.0, 3.0};
    case 3:
        return {6.0, 4.0};
    case 4:
        return {8.0, 3.0, 1.0, 3.0};
    case 5:
        return {12.0, 3.0, 2.0, 3.0, 2.0, 3.0};
    case 6:
        return {1.0, 1.5};
    case 7:
        return {16.0, 3.0, 4.0, 3.0};
    default:
        return {};
    }
}

void DrawBreakLine(QPainter& painter, const QRectF& r)
{
    const qreal middle = r.center().x(), swing = r.height() * 0.35, half = r.height() * 0.2;
    QPainterPath path(QPointF(r.left(), r.center().y()));
    path.lineTo(middle - 2.0 * half, r.center().y());
    path.lineTo(middle - half, r.center().y() - swing);
    path.lineTo(middle + half, r.center().y() + swing);
    path.lineTo(middle + 2.0 * half, r.center().y());
    path.lineTo(r.right(), r.center().y());
    painter.drawPath(path);
}

} // namespace

QIcon NativeLineDrawing::Type(unsigned int type)
{
    return IconEngine::Icon(
        [type](QPainter& painter, const QRectF& r, const QColor& ink) {
            QPen pen(ink, 1.5 * r.height() / kIconHeight, Qt::SolidLine, Qt::FlatCap);
            if (const QList<qreal> pattern = Pattern(type); !pattern.isEmpty()) pen.setDashPattern(pattern);
            painter.setPen(pen);
            if (type > KivComboDashed::kStandardTypes) {
                DrawBreakLine(painter, r);
            } else {
                painter.drawLine(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
            }
        },
        IconEngine::Background::List);
}

QIcon NativeLineDrawing::Weight(double millimeters)
{
    return IconEngine::Icon(
        [millimeters](QPainter& painter, const QRectF& r, const QColor& ink) {
            const qreal units = millimeters * kUnitsPerInch / kMillimetersPerInch;
            const qreal width = std::max(1.0, units * r.height() / kIconHeight);
            painter.fillRect(QRectF(r.left(), r.center().y() - width / 2.0, r.width(), width), ink);
        },
        IconEngine::Background::List);
}

void NativeLineDrawing::MakeRoom(QComboBox& combo)
{
    const int height = combo.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &combo);
    combo.setIconSize(QSize(4 * height, height));
}

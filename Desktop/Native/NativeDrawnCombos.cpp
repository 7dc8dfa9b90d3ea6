#include "Native/NativeDrawnCombos.h"

#include "Common/IconEngine.h"
#include "Dialog/KivCombos.h"

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

// Counted from 1; those beyond the standard ones are break lines.
QIcon LineOfType(unsigned int type)
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

QIcon LineOfWeight(double millimeters)
{
    return IconEngine::Icon(
        [millimeters](QPainter& painter, const QRectF& r, const QColor& ink) {
            const qreal units = millimeters * kUnitsPerInch / kMillimetersPerInch;
            const qreal width = std::max(1.0, units * r.height() / kIconHeight);
            painter.fillRect(QRectF(r.left(), r.center().y() - width / 2.0, r.width(), width), ink);
        },
        IconEngine::Background::List);
}

// Room for a line that shows its pattern.
void MakeRoom(QComboBox& combo)
{
    const int height = combo.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &combo);
    combo.setIconSize(QSize(4 * height, height));
}

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

NativeTypeCombo::NativeTypeCombo(KivDialog& node, QWidget* parent) : NativeDrawnCombo(node, parent)
{
    MakeRoom(*this);
}

QIcon NativeTypeCombo::LineIcon(int line) const
{
    return LineOfType(static_cast<unsigned int>(line + 1));
}

NativeWeightCombo::NativeWeightCombo(KivDialog& node, QWidget* parent) : NativeDrawnCombo(node, parent)
{
    MakeRoom(*this);
}

QIcon NativeWeightCombo::LineIcon(int line) const
{
    const auto weight = static_cast<std::size_t>(line);
    const auto& thickness = KivComboWeight::kMillimeters;
    return weight < thickness.size() ? LineOfWeight(thickness[weight]) : QIcon();
}

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

#include "Sheet/SheetRulers.h"

#include "Common/NativeText.h"
#include "Parameter/KivMeasure.h"
#include "Parameter/KivNumberFormat.h"
#include "Sheet/SheetUnit.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

struct Steps {
    double number; // in the unit, from one number to the next
    int parts;     // marks between them
};

// Feet and inches count in halves and dozens.
constexpr Steps kInches[] = {{1.0 / 16.0, 1}, {0.25, 4}, {0.5, 8},  {1.0, 8},  {3.0, 6},
                             {6.0, 6},        {12.0, 4}, {24.0, 4}, {60.0, 5}, {120.0, 10}};
constexpr double kFinest = 4.0; // pixels between marks

Steps StepsFor(const KivControlUnit& unit, double pixelsPerUnit, double labelPixels)
{
    const double wanted = labelPixels / pixelsPerUnit;
    if (unit.notation != KivNotation::Decimal) {
        for (const Steps& steps : kInches)
            if (steps.number >= wanted) return steps;
        return {120.0 * std::ceil(wanted / 120.0), 10};
    }
    const double decade = std::pow(10.0, std::floor(std::log10(wanted)));
    if (2.0 * decade >= wanted) return {2.0 * decade, 10};
    if (5.0 * decade >= wanted) return {5.0 * decade, 10};
    return {10.0 * decade, 10};
}

QString Label(double number, const KivControlUnit& unit)
{
    if (unit.notation == KivNotation::Decimal) return QString::fromStdString(KivPrintDecimal(number, 6));
    return ToQt(KivMeasure::Print(unit.ToStored(number), unit.number, 4));
}

QFont Small(QFont font)
{
    font.setPointSizeF(font.pointSizeF() > 0.0 ? font.pointSizeF() * 0.8 : 8.0);
    return font;
}

} // namespace

std::vector<SheetRuler::Mark> SheetRuler::Marks(double from, double to, double pixelsPerMm,
                                                double labelPixels)
{
    const KivControlUnit& unit = SheetUnit::Length();
    const double mmPerUnit = unit.ToStored(1.0) * 1000.0;
    const Steps steps = StepsFor(unit, pixelsPerMm * mmPerUnit, labelPixels);
    int parts = steps.parts;
    const double numberPixels = steps.number * mmPerUnit * pixelsPerMm;
    while (parts > 1 && numberPixels / parts < kFinest) parts = parts % 2 == 0 ? parts / 2 : 1;

    const double step = steps.number / parts;
    const double first = std::ceil(from / mmPerUnit / step), last = std::floor(to / mmPerUnit / step);
    if (!(last - first < 1.0e5)) return {}; // a ruler longer than any screen

    std::vector<Mark> marks;
    for (auto i = static_cast<long long>(first); i <= static_cast<long long>(last); ++i) {
        const double number = static_cast<double>(i) * step;
        const bool isNumber = i % parts == 0;
        const bool isHalf = parts % 2 == 0 && i % (parts / 2) == 0;
        marks.push_back({number * mmPerUnit,
                         isNumber ? 0
                         : isHalf ? 1
                                  : 2,
                         isNumber ? Label(number, unit) : QString()});
    }
    return marks;
}

SheetRulers::SheetRulers(const SheetCamera& camera, const QFont& font, const QPalette& palette)
    : _camera(camera), _font(Small(font)), _palette(palette), _thick(Thickness(font))
{}

int SheetRulers::Thickness(const QFont& font)
{
    return static_cast<int>(std::ceil(QFontMetricsF(Small(font)).height() * 1.75));
}

void SheetRulers::Paint(QPainter& painter, std::optional<QPointF> cursor) const
{
    const QRectF area = _camera.Area();
    painter.save();
    painter.setFont(_font);
    painter.fillRect(QRectF(0.0, 0.0, area.right(), _thick), _palette.base());
    painter.fillRect(QRectF(0.0, 0.0, _thick, area.bottom()), _palette.base());
    PaintOne(painter, Qt::Horizontal);
    PaintOne(painter, Qt::Vertical);

    painter.fillRect(QRectF(0.0, 0.0, _thick, _thick), _palette.window());
    painter.setPen(_palette.color(QPalette::Mid));
    painter.drawLine(QPointF(0.0, _thick - 0.5), QPointF(area.right(), _thick - 0.5));
    painter.drawLine(QPointF(_thick - 0.5, 0.0), QPointF(_thick - 0.5, area.bottom()));
    painter.setPen(_palette.color(QPalette::WindowText));
    const KivControlUnit& unit = SheetUnit::Length();
    const QString name =
        unit.notation == KivNotation::Decimal
            ? QString::fromUtf8(unit.suffix.data(), static_cast<int>(unit.suffix.size())).trimmed()
            : QStringLiteral("ft in");
    painter.drawText(QRectF(0.0, 0.0, _thick, _thick), Qt::AlignCenter, name);

    if (cursor) {
        painter.setPen(QPen(_palette.color(QPalette::Highlight), 1.5));
        if (cursor->x() > _thick)
            painter.drawLine(QPointF(cursor->x(), 0.0), QPointF(cursor->x(), _thick - 1.0));
        if (cursor->y() > _thick)
            painter.drawLine(QPointF(0.0, cursor->y()), QPointF(_thick - 1.0, cursor->y()));
    }
    painter.restore();
}

void SheetRulers::PaintOne(QPainter& painter, Qt::Orientation orientation) const
{
    const bool isTop = orientation == Qt::Horizontal;
    const QRectF area = _camera.Area();
    const QPointF one = _camera.ToSheet(area.topLeft()), other = _camera.ToSheet(area.bottomRight());
    const double from = isTop ? one.x() : other.y(), to = isTop ? other.x() : one.y();
    // The left ruler is the top one turned: its length runs upwards.
    painter.save();
    painter.setClipRect(isTop ? QRectF(_thick, 0.0, area.right() - _thick, _thick)
                              : QRectF(0.0, _thick, _thick, area.bottom() - _thick));
    if (!isTop) {
        painter.translate(0.0, area.bottom());
        painter.rotate(-90.0);
    }
    const QFontMetricsF metrics(_font);
    const double room = std::max(metrics.horizontalAdvance(QStringLiteral("-88888")), 44.0) + 10.0;
    const double density = painter.device()->devicePixelRatioF();
    const double lengths[] = {_thick - 2.0, _thick * 0.4, _thick * 0.24};
    const QColor text = _palette.color(QPalette::Text);
    QColor line = text;
    line.setAlphaF(0.55F);
    for (const SheetRuler::Mark& mark : SheetRuler::Marks(from, to, _camera.PixelsPerMm(), room)) {
        const double position = isTop ? _camera.ToWindow({mark.at, 0.0}).x()
                                      : area.bottom() - _camera.ToWindow({0.0, mark.at}).y();
        const double at = (std::floor(position * density) + 0.5) / density;
        painter.setPen(QPen(line, 0.0));
        painter.drawLine(QPointF(at, _thick - 1.0), QPointF(at, _thick - lengths[mark.rank]));
        if (mark.label.isEmpty()) continue;
        painter.setPen(text);
        painter.drawText(QPointF(at + 3.0, metrics.ascent() + 1.0), mark.label);
    }
    painter.restore();
}

#include "Sheet/SheetRulers.h"

#include "Common/NativeText.h"
#include "Sheet/SheetRuler.h"
#include "Sheet/SheetUnit.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace {

QFont Small(QFont font)
{
    font.setPointSizeF(font.pointSizeF() > 0.0 ? font.pointSizeF() * 0.8 : 8.0);
    return font;
}

} // namespace

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

#include "Native/NativeGraph.h"

#include "Common/NativeText.h"
#include "Common/SheetColors.h"
#include "Viewer/Kiv2DReps.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace {

// Pixels at scale 1.
constexpr qreal kThin = 1.0, kThick = 2.0;
constexpr qreal kDot = 2.5, kHandle = 4.5, kHandleHeld = 5.5;
constexpr qreal kLeastHead = 6.0;  // a shorter head of an arrow cannot be told from the end of its shaft
constexpr qreal kHalo = 3.0;       // keeps a curve from running into a text
constexpr double kGray = 0.45;     // of what is disabled, between surface and ink
constexpr double kFarAway = 1.0e6; // as far out of the window as anything is painted

} // namespace

NativeGraph::NativeGraph(const Kiv2DViewer& viewer, const QRectF& area)
    : _viewer(viewer), _area(area),
      _scale(std::min(area.width() / viewer.GetWorld().Width(), area.height() / viewer.GetWorld().Height())),
      _enlarged(std::max(1.0, std::min(area.width() / viewer.GetWidth(), area.height() / viewer.GetHeight())))
{}

QPointF NativeGraph::ToWindow(const Kiv2DPoint& point) const
{
    const Kiv2DRectangle& world = _viewer.GetWorld();
    const double x = (point.x - world.left - world.Width() / 2.0) * _scale;
    const double y = (point.y - world.bottom - world.Height() / 2.0) * _scale;
    return _area.center() + QPointF(std::clamp(x, -kFarAway, kFarAway), std::clamp(-y, -kFarAway, kFarAway));
}

Kiv2DPoint NativeGraph::ToWorld(const QPointF& point) const
{
    const Kiv2DRectangle& world = _viewer.GetWorld();
    const QPointF offset = (point - _area.center()) / _scale;
    return {world.left + world.Width() / 2.0 + offset.x(), world.bottom + world.Height() / 2.0 - offset.y()};
}

class NativeGraph::Canvas : public Kiv2DCanvas {
public:
    Canvas(const NativeGraph& graph, QPainter& painter, const Look& look)
        : _graph(graph), _painter(painter), _look(look), _toDevice(painter.deviceTransform()),
          _surface(look.palette.color(look.group, QPalette::Base)),
          _ink(look.palette.color(look.group, QPalette::Text)), _accent(_ink)
    {
        const SheetColors colors(_surface, false);
        if (look.group == QPalette::Disabled) {
            // Many themes gray texts so far that thin lines would be lost.
            _ink = _accent = colors.Shade(kGray);
        } else {
            _accent = colors.Accent(look.palette.color(look.group, QPalette::Highlight));
        }
    }

    void Draw(const Kiv2DLineRep& line) override
    {
        _painter.setPen(QPen(_ink, Width(), Qt::SolidLine, Qt::FlatCap));
        _painter.drawLine(Sharp(line.GetFrom()), Sharp(line.GetTo()));
    }

    void Draw(const Kiv2DArrowRep& arrow) override
    {
        const QPointF tip = Sharp(arrow.GetTip());
        const QPointF direction(arrow.GetDirection().x, -arrow.GetDirection().y);
        const qreal asked = std::abs(arrow.GetLength()) * _graph._scale;
        const qreal least = kLeastHead * _graph._enlarged;
        const qreal length = std::clamp(asked, least, std::max(least, _graph._area.width()));
        const qreal half = length * std::clamp(arrow.GetRatio(), -1.0, 1.0);
        const QPointF foot = tip - direction * length, side = QPointF(-direction.y(), direction.x()) * half;
        _painter.setPen(Qt::NoPen);
        _painter.setBrush(_ink);
        _painter.drawPolygon(QPolygonF{tip, foot + side, foot - side});
    }

    void Draw(const Kiv2DTextRep& text) override
    {
        const QFontMetricsF metrics(_look.font);
        const QString shown = metrics.elidedText(ToQt(text.GetText()), Qt::ElideRight, _graph._area.width());
        QRectF box(QPointF(), QSizeF(metrics.horizontalAdvance(shown), metrics.height()));
        const int anchor = static_cast<int>(text.GetAnchor()); // row by row
        box.moveTopLeft(_graph.ToWindow(text.GetPosition()) -
                        QPointF(anchor % 3 * box.width() / 2.0, anchor / 3 * box.height() / 2.0));
        const QRectF& area = _graph._area;
        box.moveLeft(std::clamp(box.left(), area.left(), std::max(area.left(), area.right() - box.width())));
        box.moveTop(std::clamp(box.top(), area.top(), std::max(area.top(), area.bottom() - box.height())));

        QPainterPath letters;
        letters.addText(box.left(), box.top() + metrics.ascent(), _look.font, shown);
        _painter.strokePath(letters, QPen(_surface, kHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        _painter.setPen(_ink);
        _painter.setFont(_look.font);
        _painter.drawText(QPointF(box.left(), box.top() + metrics.ascent()), shown);
    }

    void Draw(const Kiv2DPolylineRep& curve) override
    {
        QPolygonF points;
        for (const Kiv2DPoint& point : curve.GetPoints()) points << _graph.ToWindow(point);
        _painter.setPen(QPen(_accent, kThick * _graph._enlarged, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        _painter.drawPolyline(points);
    }

    void Draw(const Kiv2DPointRep& point) override
    {
        const QPointF middle = _graph.ToWindow(point.GetOrigin());
        const Kiv2DManipulator* manipulator = _graph._viewer.GetActiveManipulator();
        if (!manipulator || manipulator->GetPoint() != &point) {
            _painter.setPen(Qt::NoPen);
            _painter.setBrush(_ink);
            _painter.drawEllipse(middle, kDot * _graph._enlarged, kDot * _graph._enlarged);
            return;
        }
        // A knob in front of the curve: a rim that contrasts, filled while it can be moved.
        const qreal radius = (_look.isHeld ? kHandleHeld : kHandle) * _graph._enlarged;
        _painter.setPen(Qt::NoPen);
        _painter.setBrush(_surface);
        _painter.drawEllipse(middle, radius + kThick, radius + kThick);
        _painter.setPen(QPen(_ink, kThin));
        _painter.setBrush(_look.group == QPalette::Disabled ? _surface : _accent);
        _painter.drawEllipse(middle, radius, radius);
    }

private:
    // A thin line, in whole pixels of the screen.
    qreal Width() const { return std::max(1.0, std::round(kThin * _toDevice.m11())) / _toDevice.m11(); }

    // Where a line of that width along an axis covers whole pixels of the screen.
    QPointF Sharp(const Kiv2DPoint& point) const
    {
        const qreal scale = _toDevice.m11();
        const bool isOdd = std::lround(Width() * scale) % 2 == 1;
        const auto fit = [isOdd](qreal at) { return isOdd ? std::floor(at) + 0.5 : std::round(at); };
        const QPointF at = _toDevice.map(_graph.ToWindow(point));
        return _toDevice.inverted().map(QPointF(fit(at.x()), fit(at.y())));
    }

    const NativeGraph& _graph;
    QPainter& _painter;
    const Look& _look;
    const QTransform _toDevice;
    const QColor _surface;
    QColor _ink, _accent;
};

void NativeGraph::Paint(QPainter& painter, const Look& look) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    Canvas canvas(*this, painter, look);
    _viewer.GetRoot()->DrawOn(canvas);
    painter.restore();
}

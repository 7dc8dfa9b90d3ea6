#include "Sheet/SheetSketchPicture.h"

#include "Common/NativeText.h"
#include "Sheet/SheetSketch.h"
#include "Sheet/SheetText.h"
#include "Sheet/SheetUnit.h"

#include <QLineF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kReach = 8.0; // pixels within which a pointer picks
constexpr const char* kDiagnostics[] = {"DiagnosticOver", "DiagnosticInconsistent", "DiagnosticNotChanged",
                                        "DiagnosticIso"};

QPen Pen(const QColor& color, double width = 1.0, Qt::PenStyle style = Qt::SolidLine)
{
    QPen pen(color, width, style, Qt::RoundCap, Qt::RoundJoin);
    pen.setCosmetic(true);
    return pen;
}

} // namespace

SheetSketchPicture::SheetSketchPicture(const SheetSketchStyle& style, const SheetCamera& camera,
                                       const SheetColors& colors)
    : _style(style), _camera(camera), _colors(colors), _layout(camera.Sheet())
{
    QTransform toPaper;
    toPaper.translate(_layout.sketchCenter.x(), _layout.sketchCenter.y());
    toPaper.scale(_layout.viewScale, _layout.viewScale);
    _toWindow = toPaper * camera.Transform();
}

void SheetSketchPicture::Paint(QPainter& painter, double width) const
{
    const QRectF frame = Frame();
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Pen(_colors.Veil(0.4), 1.0, Qt::DashLine));
    painter.drawRect(frame);
    painter.setClipRect(frame, Qt::IntersectClip); // symbols may be of any size
    PaintElements(painter, width);
    PaintPoints(painter);
    PaintSymbols(painter);
    if (_style.position) PaintPosition(painter);
    if (_style.diagnoses) PaintLegend(painter, width);
    const QRectF extent = SheetSketch::Extent();
    painter.setPen(_colors.Ink());
    PaintText(painter, {extent.center().x(), extent.top() + 2.0}, 5.5, Qt::AlignHCenter | Qt::AlignBottom,
              DraftingText("SketchName"));
    painter.restore();
}

void SheetSketchPicture::PaintElements(QPainter& painter, double width) const
{
    painter.setBrush(Qt::NoBrush);
    for (const SheetSketch::Element& element : SheetSketch::Elements()) {
        const int state = static_cast<int>(element.state);
        if (element.state == SheetSketch::State::Construction)
            painter.setPen(Pen(_style.construction, std::max(1.0, 0.6 * width), Qt::DashLine));
        else if (_style.diagnoses && state < SheetSketch::kDiagnosed)
            painter.setPen(Pen(_style.diagnostics[static_cast<std::size_t>(state)], width));
        else
            painter.setPen(Pen(_colors.Ink(), width));
        painter.drawPath(_toWindow.map(element.Path()));
    }
}

void SheetSketchPicture::PaintPoints(QPainter& painter) const
{
    painter.setPen(Pen(_colors.Ink(), 1.2));
    if (_style.centers) painter.drawPath(_toWindow.map(SheetSketch::CenterMarks()));
    if (_style.drags) painter.drawPath(_toWindow.map(SheetSketch::DragMark()));
    const double size = std::clamp(1.4 * Scale(), 2.5, 10.0);
    for (const QPointF& end : SheetSketch::Ends()) {
        const QPointF at = _toWindow.map(end);
        if (_style.dragsEndPoints) {
            painter.setBrush(_colors.Sheet());
            painter.drawRect(QRectF(at - QPointF(size, size), at + QPointF(size, size)));
        }
        if (!_style.endPoints) continue;
        painter.setBrush(_colors.Ink());
        painter.drawEllipse(at, 0.55 * size, 0.55 * size);
    }
}

void SheetSketchPicture::PaintSymbols(QPainter& painter) const
{
    const double size = _style.symbolSize; // mm of paper
    const double pixels = size * _camera.PixelsPerMm();
    if (pixels < 0.5) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Pen(_style.symbols, std::clamp(0.25 * pixels, 1.0, 4.0)));
    for (const SheetSketch::Symbol& symbol : SheetSketch::Symbols()) {
        if (!_style.Shows(symbol.kind)) continue;
        // Outside of the line that it belongs to, with a gap.
        const QPointF middle = symbol.at + symbol.away * (1.5 * size / _layout.viewScale + 1.0);
        QTransform toWindow;
        toWindow.translate(_toWindow.map(middle).x(), _toWindow.map(middle).y());
        toWindow.scale(pixels, -pixels);
        painter.drawPath(toWindow.map(SheetSymbol(symbol.kind)));
    }
}

// The H and V fields of a point, counted from the outline's first corner.
void SheetSketchPicture::PaintPosition(QPainter& painter) const
{
    const QPointF from = SheetSketch::Ends()[0], point = SheetSketch::Ends()[2];
    const QPointF value = point - from;
    QRectF field(point + QPointF(-19.0, 5.0), QSizeF(27.0, 6.5));
    painter.setPen(Pen(_colors.Shade(0.6)));
    painter.drawLine(_toWindow.map(point), _toWindow.map(point + QPointF(0.0, 5.0)));
    for (const auto& [form, length] : {std::pair("FieldH", value.x()), std::pair("FieldV", value.y())}) {
        painter.setPen(Pen(_colors.Shade(0.6)));
        painter.setBrush(_colors.Sheet());
        painter.drawRect(_toWindow.mapRect(field));
        painter.setPen(_colors.Ink());
        PaintText(painter, field.center(), 4.0, Qt::AlignCenter,
                  DraftingText(form).arg(SheetUnit::Print(length, 2)));
        field.translate(field.width() + 1.0, 0.0);
    }
}

void SheetSketchPicture::PaintLegend(QPainter& painter, double width) const
{
    for (std::size_t i = 0; i < SheetSketchStyle::kDiagnostics; ++i) {
        const QPointF at(i % 2 == 0 ? -50.0 : 6.0, i < 2 ? -26.0 : -33.0);
        painter.setPen(Pen(_style.diagnostics[i], width));
        painter.drawLine(_toWindow.map(at), _toWindow.map(at + QPointF(8.0, 0.0)));
        painter.setPen(_colors.Ink());
        PaintText(painter, at + QPointF(10.0, 0.0), 4.0, Qt::AlignLeft | Qt::AlignVCenter,
                  DraftingText(kDiagnostics[i]));
    }
}

void SheetSketchPicture::PaintText(QPainter& painter, QPointF at, double height, Qt::Alignment alignment,
                                   const QString& text) const
{
    SheetText{.height = height * _layout.viewScale, .alignment = alignment}.Paint(painter, _camera,
                                                                                  _toWindow.map(at), text);
}

void SheetSketchPicture::PaintPick(QPainter& painter, QPointF pointer) const
{
    if (!Frame().contains(pointer)) return;
    std::optional<QPointF> at = _style.picksSupports ? Support(pointer) : std::nullopt;
    if (!at && _style.picksAlignment) {
        const std::optional<QPointF> end = Aligned(pointer);
        if (!end) return;
        const bool isLevel = std::abs(end->y() - pointer.y()) <= std::abs(end->x() - pointer.x());
        at = isLevel ? QPointF(pointer.x(), end->y()) : QPointF(end->x(), pointer.y());
        painter.setPen(Pen(_style.smartPick, 1.4, Qt::DashLine));
        painter.drawLine(*end, *at);
    }
    if (!at) return;
    painter.setPen(Pen(_style.smartPick, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(*at, 7.0, 7.0);
    painter.setBrush(_style.smartPick);
    painter.drawEllipse(*at, 2.0, 2.0);
}

// The nearest position of an element, in the window.
std::optional<QPointF> SheetSketchPicture::Support(QPointF pointer) const
{
    const QPointF position = _toWindow.inverted().map(pointer);
    std::optional<QPointF> found;
    double least = kReach;
    for (const SheetSketch::Element& element : SheetSketch::Elements()) {
        const std::optional<QPointF> nearest = element.Nearest(position);
        if (!nearest) continue;
        const QPointF at = _toWindow.map(*nearest);
        if (const double distance = QLineF(at, pointer).length(); distance <= least) {
            least = distance;
            found = at;
        }
    }
    return found;
}

// The nearest end point, in the window, that the pointer is level with or upright above.
std::optional<QPointF> SheetSketchPicture::Aligned(QPointF pointer) const
{
    std::optional<QPointF> found;
    double least = std::numeric_limits<double>::infinity();
    for (const QPointF& end : SheetSketch::Ends()) {
        const QPointF at = _toWindow.map(end), apart = at - pointer;
        if (std::min(std::abs(apart.x()), std::abs(apart.y())) > kReach / 2.0) continue;
        if (const double distance = QLineF({}, apart).length(); distance < least) {
            least = distance;
            found = at;
        }
    }
    return found;
}

QRectF SheetSketchPicture::Frame() const
{
    return _toWindow.mapRect(SheetSketch::Extent());
}

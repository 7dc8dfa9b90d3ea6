#include "Sheet/SheetPicture.h"

#include "Common/NativeText.h"
#include "Sheet/SheetGrid.h"
#include "Sheet/SheetPart.h"
#include "Sheet/SheetSketchPicture.h"
#include "Sheet/SheetText.h"
#include "Sheet/SheetUnit.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kTextHeight = 5.0; // mm of paper
constexpr double kDetailMagnification = 1.5;
constexpr double kDimmed = 0.25;
constexpr QColor kWorkedOn(0x00, 0x60, 0xa8);

QPen Pen(const QColor& color, double width = 1.0, Qt::PenStyle style = Qt::SolidLine)
{
    QPen pen(color, width, style, Qt::FlatCap, Qt::MiterJoin);
    pen.setCosmetic(true);
    return pen;
}

// Long and short dashes, as center lines have them.
QPen CenterPen(const QColor& color)
{
    QPen pen = Pen(color);
    pen.setDashPattern({12.0, 3.0, 2.0, 3.0});
    return pen;
}

} // namespace

SheetPicture::SheetPicture(const SheetStyle& style, const SheetSketchStyle& sketch, const SheetLook& look,
                           const SheetCamera& camera, double rotation, const QString& format)
    : _style(style), _sketch(sketch), _look(look), _camera(camera), _rotation(rotation), _format(format),
      _layout(camera.Sheet()), _colors(style.sheet, style.sheetGraduated),
      _detailColors(style.detail, style.detailGraduated)
{}

void SheetPicture::Paint(QPainter& painter) const
{
    const QRectF sheet(QPointF(0.0, 0.0), _camera.Sheet());
    PaintSurface(painter, sheet, _colors);
    PaintGrid(painter, sheet, _colors);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!_look.isBackground) PaintBorder(painter);
    painter.setOpacity(_look.isBackground ? kDimmed : 1.0);
    PaintView(painter);
    SheetSketchPicture(_sketch, _camera, _colors).Paint(painter, PartLine());
    painter.setRenderHint(QPainter::Antialiasing, false);
    PaintDetail(painter);
    painter.setOpacity(1.0);
    painter.setRenderHint(QPainter::Antialiasing);
    if (_look.isBackground) PaintBorder(painter);
}

void SheetPicture::PaintPick(QPainter& painter, QPointF pointer) const
{
    if (!_look.isBackground) SheetSketchPicture(_sketch, _camera, _colors).PaintPick(painter, pointer);
}

QRectF SheetPicture::SketchFrame() const
{
    return SheetSketchPicture(_sketch, _camera, _colors).Frame();
}

// A soft shadow, the surface and its edge.
void SheetPicture::PaintSurface(QPainter& painter, const QRectF& sheet, const SheetColors& colors) const
{
    const QRectF window = ToWindow(sheet);
    painter.setPen(Qt::NoPen);
    for (int ring = 6; ring > 0; --ring) {
        painter.setBrush(QColor(0, 0, 0, 11));
        painter.drawRoundedRect(window.adjusted(-ring, -ring, ring, ring).translated(0.0, 2.0), ring, ring);
    }
    painter.fillRect(window, colors.Surface(window.top(), window.bottom()));
    painter.setPen(Pen(colors.Veil(0.45)));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(window);
}

void SheetPicture::PaintGrid(QPainter& painter, const QRectF& part, const SheetColors& colors) const
{
    if (!_style.grid) return;
    const QRectF seen = VisiblePaper(part);
    if (seen.isEmpty()) return;
    // On the middle of a device pixel each line is one pixel wide, not a blur over two.
    const double density = painter.device()->devicePixelRatioF();
    const auto crisp = [density](double at) { return (std::floor(at * density) + 0.5) / density; };
    const QRectF window = ToWindow(seen);

    std::vector<QLineF> primary, graduations;
    for (const SheetGrid::Line& line :
         SheetGrid(_style.spacingH, _style.partsH).Lines(seen.left(), seen.right(), _camera.PixelsPerMm())) {
        const double x = crisp(_camera.ToWindow({line.at, 0.0}).x());
        (line.primary ? primary : graduations).emplace_back(x, window.top(), x, window.bottom());
    }
    for (const SheetGrid::Line& line :
         SheetGrid(_style.spacingV, _style.partsV).Lines(seen.top(), seen.bottom(), _camera.PixelsPerMm())) {
        const double y = crisp(_camera.ToWindow({0.0, line.at}).y());
        (line.primary ? primary : graduations).emplace_back(window.left(), y, window.right(), y);
    }
    // Lines fade as they come closer, or a dense grid would drown the drawing.
    const double closest = std::min(_style.spacingH > 0.0 ? _style.spacingH : 1.0e9,
                                    _style.spacingV > 0.0 ? _style.spacingV : 1.0e9);
    const double strength = 0.28 * std::clamp(closest * _camera.PixelsPerMm() / 14.0, 0.35, 1.0);
    painter.setPen(Pen(colors.Veil(0.11)));
    painter.drawLines(graduations.data(), static_cast<int>(graduations.size()));
    painter.setPen(Pen(colors.Veil(strength)));
    painter.drawLines(primary.data(), static_cast<int>(primary.size()));
}

void SheetPicture::PaintBorder(QPainter& painter) const
{
    const QColor line = _look.isBackground ? _colors.Accent(kWorkedOn) : _colors.Shade(0.75);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Pen(line, Thick()));
    painter.drawRect(ToWindow(_layout.border));

    const QRectF block = _layout.titleBlock;
    const QRectF sheet = ToWindow(QRectF(QPointF(0.0, 0.0), _camera.Sheet()));
    painter.setBrush(_colors.Surface(sheet.top(), sheet.bottom()));
    painter.drawRect(ToWindow(block));
    painter.setPen(Pen(line));
    const double middle = block.top() + block.height() / 2.0;
    const double right = block.left() + block.width() * 0.68;
    painter.drawLine(_camera.ToWindow({block.left(), middle}), _camera.ToWindow({block.right(), middle}));
    painter.drawLine(_camera.ToWindow({right, block.top()}), _camera.ToWindow({right, block.bottom()}));

    struct Field {
        QPointF at;
        const char* caption;
        QString text;
    };
    const QString scale = DraftingText(_layout.viewScale > 1.0   ? "Scale2"
                                       : _layout.viewScale < 1.0 ? "ScaleHalf"
                                                                 : "Scale1");
    const double row = block.height() / 2.0, small = row * 0.2;
    painter.setPen(_colors.Ink());
    for (const Field& field : {Field{{block.left(), middle}, "BlockTitle", DraftingText("PartName")},
                               Field{{right, middle}, "BlockFormat", _format},
                               Field{{block.left(), block.top()}, "BlockSheet", DraftingText("TreeSheet")},
                               Field{{right, block.top()}, "BlockScale", scale}}) {
        const QPointF at = field.at + QPointF(small, 0.0);
        PaintText(painter, _camera.ToWindow(at + QPointF(0.0, row * 0.76)), row * 0.22, 0.0,
                  Qt::AlignLeft | Qt::AlignVCenter, DraftingText(field.caption));
        PaintText(painter, _camera.ToWindow(at + QPointF(0.0, row * 0.34)), row * 0.38, 0.0,
                  Qt::AlignLeft | Qt::AlignVCenter, field.text);
    }
}

void SheetPicture::PaintView(QPainter& painter) const
{
    painter.save();
    painter.setClipRect(ToWindow(QRectF(QPointF(0.0, 0.0), _camera.Sheet())));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Pen(_colors.Veil(0.4), 1.0, Qt::DashLine));
    painter.drawPolygon(ViewFrame());
    PaintPart(painter, PartTransform(), PartLine(), _colors);
    PaintDimensions(painter);
    if (_style.axis) PaintAxis(painter);
    painter.restore();
}

void SheetPicture::PaintPart(QPainter& painter, const QTransform& toWindow, double scale,
                             const SheetColors& colors) const
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(CenterPen(colors.Accent(QColor(0x00, 0x60, 0xa8))));
    painter.drawPath(toWindow.map(SheetPart::CenterLines()));
    painter.setPen(Pen(colors.Veil(0.85), 1.0, Qt::DashLine));
    painter.drawPath(toWindow.map(SheetPart::Hidden()));
    painter.setPen(Pen(colors.Ink(), scale));
    painter.drawPath(toWindow.map(SheetPart::Visible()));
}

void SheetPicture::PaintDimensions(QPainter& painter) const
{
    const QTransform toWindow = PartTransform();
    const QColor line = _colors.Accent(QColor(0x50, 0x50, 0x58));
    painter.setPen(Pen(line));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(toWindow.map(SheetPart::DimensionLines()));
    painter.fillPath(toWindow.map(SheetPart::Arrows()), line);
    for (const SheetPart::Dimension& dimension : SheetPart::Dimensions()) {
        const char* const form = dimension.kind == SheetPart::Dimension::Kind::Length   ? "DimensionLength"
                                 : dimension.kind == SheetPart::Dimension::Kind::Radius ? "DimensionRadius"
                                                                                        : "DimensionDiameter";
        PaintText(painter, toWindow.map(dimension.at), kTextHeight * _layout.viewScale, _rotation,
                  Qt::AlignHCenter | Qt::AlignBottom,
                  DraftingText(form).arg(SheetUnit::Print(dimension.value, 3)));
    }

    const double radius = SheetPart::kDetailRadius;
    QPainterPath round;
    round.addEllipse(SheetPart::DetailCenter(), radius, radius);
    painter.drawPath(toWindow.map(round));
    painter.setPen(_colors.Ink());
    PaintText(painter, toWindow.map(SheetPart::DetailCenter() + QPointF(radius, radius) * 0.86),
              kTextHeight * _layout.viewScale, _rotation, Qt::AlignCenter, DraftingText("DetailMark"));
    const QRectF frame = SheetPart::Extent();
    PaintText(painter, toWindow.map(QPointF(frame.center().x(), frame.top() + 2.0)),
              kTextHeight * 1.1 * _layout.viewScale, _rotation, Qt::AlignHCenter | Qt::AlignBottom,
              DraftingText("ViewName"));
}

// The axis grows with the zoom like all that is on paper, or it is as large on the screen as on paper at
// 100 %, whatever the zoom.
void SheetPicture::PaintAxis(QPainter& painter) const
{
    const double pixelsPerMm = _style.axisZooms ? _camera.PixelsPerMm() : _camera.Resolution();
    // Beyond this the end is outside of any window; painting engines have their limits.
    const double length = std::min(_style.axisLength * pixelsPerMm, 20000.0);
    if (length < 1.0) return;
    const double head = std::min(3.2 * pixelsPerMm, length / 3.0);
    const double text = std::clamp(head * 1.1, 8.0, 40.0);

    painter.save();
    painter.translate(ViewCenter());
    painter.rotate(-_rotation);
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(text));
    font.setBold(true);
    painter.setFont(font);
    struct Arm {
        QColor color;
        QPointF along;
        const char* name;
    };
    for (const Arm& arm : {Arm{QColor(0xc8, 0x20, 0x20), {1.0, 0.0}, "AxisH"},
                           Arm{QColor(0x10, 0x80, 0x20), {0.0, -1.0}, "AxisV"}}) {
        const QColor color = _colors.Accent(arm.color);
        const QPointF tip = arm.along * length, side = QPointF(arm.along.y(), -arm.along.x()) * head * 0.32;
        const QPointF back = arm.along * (length - head);
        painter.setPen(Pen(color, 1.8));
        painter.drawLine(QPointF(0.0, 0.0), back);
        painter.setBrush(color);
        painter.setPen(Qt::NoPen);
        painter.drawPolygon(QPolygonF({tip, back + side, back - side}));
        if (length < 2.0 * text) continue; // no room for letters
        painter.setPen(color);
        const QPointF position = tip + arm.along * text * 0.8;
        painter.drawText(QRectF(position - QPointF(text, text), QSizeF(2.0 * text, 2.0 * text)),
                         Qt::AlignCenter, DraftingText(arm.name));
    }
    painter.setBrush(_colors.Ink());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(0.0, 0.0), 2.5, 2.5);
    painter.restore();
}

void SheetPicture::PaintDetail(QPainter& painter) const
{
    const QRectF sheet = _layout.detail;
    if (VisiblePaper(sheet).isEmpty()) return;
    PaintSurface(painter, sheet, _detailColors);
    PaintGrid(painter, sheet, _detailColors);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(ToWindow(sheet), Qt::IntersectClip);

    const double magnified = kDetailMagnification * _layout.viewScale;
    // As large as fits above the name, whatever the size of the sheet.
    const double room = std::min(sheet.width(), sheet.height() - 12.0 * _layout.viewScale) * 0.47;
    const double scale = std::min(magnified, room / SheetPart::kDetailRadius);
    const QPointF center = sheet.center() + QPointF(0.0, 4.0 * _layout.viewScale);
    const double radius = SheetPart::kDetailRadius * scale;
    QTransform toPaper;
    toPaper.translate(center.x(), center.y());
    toPaper.scale(scale, scale);
    toPaper.translate(-SheetPart::DetailCenter().x(), -SheetPart::DetailCenter().y());

    QPainterPath round;
    round.addEllipse(center, radius, radius);
    const QPainterPath shown = _camera.Transform().map(round);
    painter.setPen(Pen(_detailColors.Veil(0.6)));
    painter.drawPath(shown);
    painter.setPen(_detailColors.Ink());
    PaintText(painter, _camera.ToWindow(QPointF(sheet.center().x(), sheet.top() + 3.0 * _layout.viewScale)),
              kTextHeight * _layout.viewScale, 0.0, Qt::AlignHCenter | Qt::AlignBottom,
              DraftingText("DetailName"));
    painter.setClipPath(shown, Qt::IntersectClip);
    PaintPart(painter, toPaper * _camera.Transform(), PartLine(), _detailColors);
    painter.restore();
}

void SheetPicture::PaintText(QPainter& painter, QPointF at, double height, double angle,
                             Qt::Alignment alignment, const QString& text) const
{
    SheetText{height, angle, alignment}.Paint(painter, _camera, at, text);
}

QTransform SheetPicture::PartTransform() const
{
    QTransform toPaper;
    toPaper.translate(_layout.viewCenter.x(), _layout.viewCenter.y());
    toPaper.rotate(_rotation);
    toPaper.scale(_layout.viewScale, _layout.viewScale);
    return toPaper * _camera.Transform();
}

QPolygonF SheetPicture::ViewFrame() const
{
    const QPolygonF corners(SheetPart::Extent());
    return PartTransform().map(corners);
}

QPointF SheetPicture::ViewCenter() const
{
    return _camera.ToWindow(_layout.viewCenter);
}

QRectF SheetPicture::ToWindow(const QRectF& paper) const
{
    return QRectF(_camera.ToWindow(paper.topLeft()), _camera.ToWindow(paper.bottomRight())).normalized();
}

QRectF SheetPicture::VisiblePaper(const QRectF& paper) const
{
    const QRectF seen =
        QRectF(_camera.ToSheet(_camera.Area().topLeft()), _camera.ToSheet(_camera.Area().bottomRight()));
    return paper.intersected(seen.normalized());
}

double SheetPicture::Thick() const
{
    return std::clamp(0.6 * _camera.PixelsPerMm(), 1.4, 8.0);
}

// Of the three weights none looks like another, whatever the zoom.
double SheetPicture::PartLine() const
{
    switch (_look.line) {
    case SheetLine::Thin:
        return 0.5 * Thick();
    case SheetLine::Thick:
        return 2.0 * Thick();
    default:
        return Thick();
    }
}

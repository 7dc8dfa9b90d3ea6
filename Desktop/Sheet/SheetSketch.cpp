#include "Sheet/SheetSketch.h"

#include <QLineF>
#include <QPolygonF>

#include <algorithm>

namespace {

QPainterPath Strokes(std::initializer_list<QPolygonF> strokes)
{
    QPainterPath path;
    for (const QPolygonF& stroke : strokes) path.addPolygon(stroke);
    return path;
}

QPainterPath Rounds(QPointF center, std::initializer_list<double> radii,
                    std::initializer_list<QPolygonF> strokes = {})
{
    QPainterPath path = Strokes(strokes);
    for (const double radius : radii) path.addEllipse(center, radius, radius);
    return path;
}

constexpr double kLeft = -44.0, kRight = 18.0, kAxis = 10.0; // the tongue's end and the middle of its round
constexpr double kRadius = 22.0, kTop = kAxis + kRadius, kFoot = kAxis - kRadius;
constexpr double kBore = 10.0, kHole = 4.5;
constexpr double kHoleAt = -22.0, kUpperHole = kAxis + 10.0, kLowerHole = kAxis - 10.0;
constexpr QPointF kCenter(kRight, kAxis);
constexpr double kDiagonal = 0.70710678118654752;

using State = SheetSketch::State;

constexpr SheetSketch::Element kElements[] = {
    {State::Construction, {kLeft - 6.0, kAxis}, {kRight + kRadius + 6.0, kAxis}},
    {State::Construction, {kHoleAt, kLowerHole - 9.0}, {kHoleAt, kUpperHole + 9.0}},
    {State::IsoConstrained, {kLeft, kFoot}, {kRight, kFoot}},
    {State::IsoConstrained, {kLeft, kFoot}, {kLeft, kTop}},
    {State::IsoConstrained, kCenter, {}, kRadius, true},
    {State::OverConstrained, {kLeft, kTop}, {kRight, kTop}},
    {State::Inconsistent, {kHoleAt, kUpperHole}, {}, kHole},
    {State::NotChanged, {kHoleAt, kLowerHole}, {}, kHole},
    {State::Free, kCenter, {}, kBore},
};

constexpr SheetSketch::Symbol kSymbols[] = {
    {SheetConstraint::Horizontal, {-32.0, kFoot}, {0.0, -1.0}},
    {SheetConstraint::Vertical, {kLeft, 23.0}, {-1.0, 0.0}},
    {SheetConstraint::Parallel, {-14.0, kFoot}, {0.0, -1.0}},
    {SheetConstraint::Parallel, {-14.0, kTop}, {0.0, 1.0}},
    {SheetConstraint::Perpendicular, {kLeft, kFoot}, {kDiagonal, kDiagonal}},
    {SheetConstraint::Concentric, {kRight + kBore * kDiagonal, kAxis + kBore* kDiagonal}, {1.0, 0.0}},
    {SheetConstraint::Coincident, {kLeft, kAxis}, {kDiagonal, kDiagonal}},
    {SheetConstraint::Tangent, {kRight, kFoot}, {0.0, -1.0}},
    {SheetConstraint::Symmetric, {kHoleAt + kHole, kUpperHole}, {1.0, 0.0}},
    {SheetConstraint::Symmetric, {kHoleAt + kHole, kLowerHole}, {1.0, 0.0}},
};

constexpr QPointF kEnds[] = {{kLeft, kFoot}, {kLeft, kTop}, {kRight, kTop}, {kRight, kFoot}};

void AddLine(QPainterPath& path, QPointF from, QPointF to)
{
    path.moveTo(from);
    path.lineTo(to);
}

QRectF Around(QPointF center, double radius)
{
    return {center.x() - radius, center.y() - radius, 2.0 * radius, 2.0 * radius};
}

} // namespace

QPainterPath SheetSymbol(SheetConstraint kind)
{
    switch (kind) {
    case SheetConstraint::Horizontal:
        return Strokes({{{-0.7, -1.0}, {-0.7, 1.0}}, {{0.7, -1.0}, {0.7, 1.0}}, {{-0.7, 0.0}, {0.7, 0.0}}});
    case SheetConstraint::Vertical:
        return Strokes({{{-0.8, 1.0}, {0.0, -1.0}, {0.8, 1.0}}});
    case SheetConstraint::Parallel:
        return Strokes({{{-0.8, -1.0}, {0.0, 1.0}}, {{0.0, -1.0}, {0.8, 1.0}}});
    case SheetConstraint::Perpendicular:
        return Strokes({{{-1.0, -1.0}, {1.0, -1.0}}, {{0.0, -1.0}, {0.0, 1.0}}});
    case SheetConstraint::Concentric:
        return Rounds({}, {1.0, 0.45});
    case SheetConstraint::Coincident:
        return Rounds({}, {0.7, 0.15});
    case SheetConstraint::Tangent:
        return Rounds({0.0, 0.2}, {0.8}, {{{-1.0, -0.6}, {1.0, -0.6}}});
    case SheetConstraint::Symmetric:
        return Strokes({{{0.0, -1.0}, {0.0, 1.0}},
                        {{-1.0, 0.7}, {-0.3, 0.0}, {-1.0, -0.7}, {-1.0, 0.7}},
                        {{1.0, 0.7}, {0.3, 0.0}, {1.0, -0.7}, {1.0, 0.7}}});
    }
    return {};
}

QPainterPath SheetSketch::Element::Path() const
{
    QPainterPath path;
    if (radius == 0.0) {
        AddLine(path, from, to);
    } else if (isHalf) {
        path.arcMoveTo(Around(from, radius), -90.0);
        path.arcTo(Around(from, radius), -90.0, 180.0);
    } else {
        path.addEllipse(from, radius, radius);
    }
    return path;
}

std::optional<QPointF> SheetSketch::Element::Nearest(QPointF position) const
{
    const QPointF away = position - from;
    if (radius == 0.0) {
        const QPointF along = to - from;
        const double part = QPointF::dotProduct(away, along) / QPointF::dotProduct(along, along);
        return from + along * std::clamp(part, 0.0, 1.0);
    }
    // The middle is as far from every position of the circle; the ends of a half one belong to its neighbors.
    const double distance = QLineF({}, away).length();
    if (distance == 0.0 || (isHalf && away.x() < 0.0)) return std::nullopt;
    return from + away * (radius / distance);
}

std::span<const SheetSketch::Element> SheetSketch::Elements()
{
    return kElements;
}

std::span<const SheetSketch::Symbol> SheetSketch::Symbols()
{
    return kSymbols;
}

std::span<const QPointF> SheetSketch::Ends()
{
    return kEnds;
}

QPainterPath SheetSketch::CenterMarks()
{
    QPainterPath path;
    for (const Element& element : kElements) {
        if (element.radius == 0.0 || element.isHalf) continue;
        const double arm = std::min(0.5 * element.radius, 2.5);
        for (const QPointF& along : {QPointF(arm, 0.0), QPointF(0.0, arm)})
            AddLine(path, element.from - along, element.from + along);
    }
    return path;
}

QPainterPath SheetSketch::DragMark()
{
    constexpr double kArm = 4.0, kHead = 1.3;
    const QPointF middle = kCenter - QPointF(kBore, kBore) * kDiagonal;
    QPainterPath path;
    for (const QPointF& out :
         {QPointF(1.0, 0.0), QPointF(-1.0, 0.0), QPointF(0.0, 1.0), QPointF(0.0, -1.0)}) {
        const QPointF tip = middle + out * kArm, back = tip - out * kHead;
        const QPointF side = QPointF(-out.y(), out.x()) * kHead;
        AddLine(path, middle, tip);
        AddLine(path, back + side, tip);
        path.lineTo(back - side);
    }
    return path;
}

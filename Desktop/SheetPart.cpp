#include "SheetPart.h"

namespace {

constexpr double kFoot = -50.0;                                           // the underside
constexpr double kTop = kFoot + SheetPart::kBase;                         // of the base plate
constexpr double kAxis = kFoot + SheetPart::kHeight - SheetPart::kRadius; // of the bore
constexpr double kHalf = SheetPart::kLength / 2.0;
constexpr double kFillet = 8.0, kCorner = 6.0;
constexpr double kBolt = 54.0, kBoltRadius = 5.5; // the two holes in the base

QRectF Around(double x, double y, double radius)
{
    return {x - radius, y - radius, 2.0 * radius, 2.0 * radius};
}

void AddLine(QPainterPath& path, double fromX, double fromY, double toX, double toY)
{
    path.moveTo(fromX, fromY);
    path.lineTo(toX, toY);
}

// An arrow head at a place, pointing along (x, y).
void AddArrow(QPainterPath& path, double atX, double atY, double x, double y)
{
    constexpr double kLong = 4.5, kWide = 1.0;
    const QPointF tip(atX, atY), back = tip - kLong * QPointF(x, y), side = kWide * QPointF(-y, x);
    path.moveTo(tip);
    path.lineTo(back + side);
    path.lineTo(back - side);
    path.closeSubpath();
}

} // namespace

// Angles of arcs are as the path counts them, which is clockwise where y points up.
QPainterPath SheetPart::Visible()
{
    QPainterPath path;
    path.moveTo(-kHalf, kFoot);
    path.lineTo(kHalf, kFoot);
    path.lineTo(kHalf, kTop - kCorner);
    path.arcTo(Around(kHalf - kCorner, kTop - kCorner, kCorner), 0.0, -90.0);
    path.lineTo(kRadius + kFillet, kTop);
    path.arcTo(Around(kRadius + kFillet, kTop + kFillet, kFillet), 90.0, 90.0);
    path.lineTo(kRadius, kAxis);
    path.arcTo(Around(0.0, kAxis, kRadius), 0.0, -180.0);
    path.lineTo(-kRadius, kTop + kFillet);
    path.arcTo(Around(-kRadius - kFillet, kTop + kFillet, kFillet), 0.0, 90.0);
    path.lineTo(-kHalf + kCorner, kTop);
    path.arcTo(Around(-kHalf + kCorner, kTop - kCorner, kCorner), -90.0, -90.0);
    path.closeSubpath();
    path.addEllipse(Around(0.0, kAxis, kBore / 2.0));
    path.addEllipse(Around(0.0, kAxis, kBore / 2.0 + 3.0));
    return path;
}

QPainterPath SheetPart::Hidden()
{
    QPainterPath path;
    for (const double bolt : {-kBolt, kBolt})
        for (const double side : {-kBoltRadius, kBoltRadius})
            AddLine(path, bolt + side, kFoot, bolt + side, kTop);
    return path;
}

QPainterPath SheetPart::CentreLines()
{
    QPainterPath path;
    const double beyond = 6.0;
    AddLine(path, -kRadius - beyond, kAxis, kRadius + beyond, kAxis);
    AddLine(path, 0.0, kFoot - beyond, 0.0, kAxis + kRadius + beyond);
    for (const double bolt : {-kBolt, kBolt}) AddLine(path, bolt, kFoot - beyond, bolt, kTop + beyond);
    return path;
}

QPainterPath SheetPart::DimensionLines()
{
    QPainterPath path;
    const double line = kFoot - 14.0;
    for (const double end : {-kHalf, kHalf}) AddLine(path, end, kFoot - 1.5, end, line - 3.0);
    AddLine(path, -kHalf, line, kHalf, line);
    AddArrow(path, -kHalf, line, -1.0, 0.0);
    AddArrow(path, kHalf, line, 1.0, 0.0);

    // The radius of the body and the diameter of the bore, each on a leader.
    const double diagonal = 0.70710678118654752;
    const double outer = kRadius * diagonal, inner = kBore / 2.0 * diagonal;
    AddLine(path, outer, kAxis + outer, outer + 13.0, kAxis + outer + 13.0);
    path.lineTo(outer + 35.0, kAxis + outer + 13.0);
    AddArrow(path, outer, kAxis + outer, -diagonal, -diagonal);
    AddLine(path, -inner, kAxis + inner, -outer - 13.0, kAxis + outer + 13.0);
    path.lineTo(-outer - 35.0, kAxis + outer + 13.0);
    AddArrow(path, -inner, kAxis + inner, diagonal, -diagonal);
    return path;
}

std::array<SheetPart::Dimension, 3> SheetPart::Dimensions()
{
    const double shoulder = kAxis + kRadius * 0.70710678118654752 + 14.5;
    return {Dimension{Dimension::Kind::Length, kLength, {0.0, kFoot - 12.5}},
            Dimension{Dimension::Kind::Radius, kRadius, {49.0, shoulder}},
            Dimension{Dimension::Kind::Diameter, kBore, {-49.0, shoulder}}};
}

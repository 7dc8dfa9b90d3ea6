#include "Sheet/SheetPart.h"

namespace {

constexpr double kFoot = SheetPart::kRadius - SheetPart::kHeight; // the underside
constexpr double kTop = kFoot + SheetPart::kBase;                 // of the base plate
constexpr double kAxis = 0.0;                                     // of the bore
constexpr double kHalf = SheetPart::kLength / 2.0;
constexpr double kFillet = 8.0, kCorner = 6.0;
constexpr double kBolt = 54.0, kBoltRadius = 5.5; // the two holes in the base

constexpr double kDiagonal = 0.70710678118654752;
constexpr double kOuter = SheetPart::kRadius * kDiagonal; // where the leaders touch the body and the bore
constexpr double kInner = SheetPart::kBore / 2.0 * kDiagonal;
constexpr double kLeader = 12.0, kShoulder = 30.0;
constexpr double kDimension = kFoot - 14.0; // the line of the length

QRectF Around(double x, double y, double radius)
{
    return {x - radius, y - radius, 2.0 * radius, 2.0 * radius};
}

void AddLine(QPainterPath& path, double fromX, double fromY, double toX, double toY)
{
    path.moveTo(fromX, fromY);
    path.lineTo(toX, toY);
}

// An arrow head at a position, pointing along (x, y).
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

QPainterPath SheetPart::CenterLines()
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
    for (const double end : {-kHalf, kHalf}) AddLine(path, end, kFoot - 1.5, end, kDimension - 3.0);
    AddLine(path, -kHalf, kDimension, kHalf, kDimension);
    // The radius of the body and the diameter of the bore, each on a leader with a shoulder for its text.
    AddLine(path, kOuter, kAxis + kOuter, kOuter + kLeader, kAxis + kOuter + kLeader);
    path.lineTo(kOuter + kLeader + kShoulder, kAxis + kOuter + kLeader);
    AddLine(path, -kInner, kAxis + kInner, -kOuter - kLeader, kAxis + kOuter + kLeader);
    path.lineTo(-kOuter - kLeader - kShoulder, kAxis + kOuter + kLeader);
    return path;
}

QPainterPath SheetPart::Arrows()
{
    QPainterPath path;
    AddArrow(path, -kHalf, kDimension, -1.0, 0.0);
    AddArrow(path, kHalf, kDimension, 1.0, 0.0);
    AddArrow(path, kOuter, kAxis + kOuter, -kDiagonal, -kDiagonal);
    AddArrow(path, -kInner, kAxis + kInner, kDiagonal, -kDiagonal);
    return path;
}

std::array<SheetPart::Dimension, 3> SheetPart::Dimensions()
{
    const double shoulder = kAxis + kOuter + kLeader + 1.5;
    const double middle = kOuter + kLeader + kShoulder / 2.0;
    return {Dimension{Dimension::Kind::Length, kLength, {0.0, kDimension + 1.5}},
            Dimension{Dimension::Kind::Radius, kRadius, {middle, shoulder}},
            Dimension{Dimension::Kind::Diameter, kBore, {-middle, shoulder}}};
}

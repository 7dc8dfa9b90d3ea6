#include "Sheet/SheetConstraint.h"

#include <QPolygonF>

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

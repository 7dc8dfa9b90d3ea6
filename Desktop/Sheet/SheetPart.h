#pragma once

#include <QPainterPath>
#include <QRectF>
#include <array>

// The mechanical part of the sample view: a bearing bracket, in mm around the axis of its bore, y up.
class SheetPart {
public:
    static constexpr double kLength = 140.0, kRadius = 35.0, kBore = 36.0, kHeight = 100.0, kBase = 20.0;

    // The lines of each kind.
    static QPainterPath Visible();
    static QPainterPath Hidden();
    static QPainterPath CenterLines();
    // Dimension and extension lines, without their texts; their arrows, which are filled.
    static QPainterPath DimensionLines();
    static QPainterPath Arrows();

    // Where a text of a dimension stands.
    struct Dimension {
        enum class Kind { Length, Radius, Diameter } kind;
        double value; // mm
        QPointF at;
    };
    static std::array<Dimension, 3> Dimensions();

    // The round that the detail sheet shows, and all that the view needs on paper at full scale.
    static QPointF DetailCenter() { return {46.0, -43.0}; }
    static constexpr double kDetailRadius = 17.0;
    static QRectF Extent() { return {-84.0, -97.0, 168.0, 146.0}; }
};

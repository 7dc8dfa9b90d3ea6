#pragma once

#include "Viewer/Kiv2DRepresentation.h"

#include <vector>

// A curve, as a series of points on it.
class Kiv2DPolylineRep : public KivClass<Kiv2DPolylineRep, Kiv2DRepresentation> {
public:
    static constexpr const char* Name = "Kiv2DPolylineRep";
    // Points that are not finite are left out.
    explicit Kiv2DPolylineRep(std::vector<Kiv2DPoint> points) : KivClass(Name), _points(std::move(points))
    {
        std::erase_if(_points, [](const Kiv2DPoint& point) { return !point.IsFinite(); });
    }

    const std::vector<Kiv2DPoint>& GetPoints() const { return _points; }

    void DrawOn(Kiv2DCanvas& canvas) const override { canvas.Draw(*this); }

private:
    std::vector<Kiv2DPoint> _points;
};

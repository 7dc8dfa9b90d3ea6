#pragma once

#include "Viewer/Kiv2DRepresentation.h"

// The head of an arrow, without its shaft.
class Kiv2DArrowRep : public KivClass<Kiv2DArrowRep, Kiv2DRepresentation> {
public:
    static constexpr const char* Name = "Kiv2DArrowRep";
    // Where its tip is and the direction that it points in (of any length), its length in units of the world,
    // and half its width as a part of that length.
    Kiv2DArrowRep(const Kiv2DPoint& tip, const Kiv2DPoint& direction, double length, double ratio);

    const Kiv2DPoint& GetTip() const { return _tip; }
    // Of length 1; not finite for a direction that is none.
    const Kiv2DPoint& GetDirection() const { return _direction; }
    double GetLength() const { return _length; }
    double GetRatio() const { return _ratio; }

    void DrawOn(Kiv2DCanvas& canvas) const override;

private:
    Kiv2DPoint _tip, _direction;
    double _length, _ratio;
};

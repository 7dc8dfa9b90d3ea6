#pragma once

#include "Viewer/Kiv2DRepresentation.h"

// A marked point; with a manipulator it is the cursor that a user drags.
class Kiv2DPointRep : public KivClass<Kiv2DPointRep, Kiv2DRepresentation> {
public:
    static constexpr const char* Name = "Kiv2DPointRep";
    explicit Kiv2DPointRep(const Kiv2DPoint& origin = {}) : KivClass(Name) { SetOrigin(origin); }

    // One that is not finite is ignored.
    void SetOrigin(const Kiv2DPoint& origin)
    {
        if (origin.IsFinite()) _origin = origin;
    }
    const Kiv2DPoint& GetOrigin() const { return _origin; }

    void DrawOn(Kiv2DCanvas& canvas) const override { canvas.Draw(*this); }

private:
    Kiv2DPoint _origin;
};

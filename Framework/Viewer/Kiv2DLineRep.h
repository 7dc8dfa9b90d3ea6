#pragma once

#include "Viewer/Kiv2DRepresentation.h"

// A straight line.
class Kiv2DLineRep : public KivClass<Kiv2DLineRep, Kiv2DRepresentation> {
public:
    static constexpr const char* Name = "Kiv2DLineRep";
    Kiv2DLineRep(const Kiv2DPoint& from, const Kiv2DPoint& to) : KivClass(Name), _from(from), _to(to) {}

    const Kiv2DPoint& GetFrom() const { return _from; }
    const Kiv2DPoint& GetTo() const { return _to; }

    void DrawOn(Kiv2DCanvas& canvas) const override
    {
        if (_from.IsFinite() && _to.IsFinite()) canvas.Draw(*this);
    }

private:
    Kiv2DPoint _from, _to;
};

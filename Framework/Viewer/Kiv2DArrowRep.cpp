#include "Viewer/Kiv2DArrowRep.h"

Kiv2DArrowRep::Kiv2DArrowRep(const Kiv2DPoint& tip, const Kiv2DPoint& direction, double length, double ratio)
    : KivClass(Name), _tip(tip), _direction(direction), _length(length), _ratio(ratio)
{
    const double size = std::hypot(direction.x, direction.y);
    _direction = {direction.x / size, direction.y / size};
}

void Kiv2DArrowRep::DrawOn(Kiv2DCanvas& canvas) const
{
    if (_tip.IsFinite() && _direction.IsFinite() && std::isfinite(_length) && std::isfinite(_ratio))
        canvas.Draw(*this);
}

#pragma once

#include "Command/KivCommand.h"
#include "Viewer/Kiv2DPoint.h"

class Kiv2DArrowRep;
class Kiv2DLineRep;
class Kiv2DPointRep;
class Kiv2DPolylineRep;
class Kiv2DTextRep;

// Who draws representations: a native view. Colors, widths and fonts are its own, so that they follow the
// theme.
class Kiv2DCanvas {
public:
    virtual void Draw(const Kiv2DLineRep& line) = 0;
    virtual void Draw(const Kiv2DArrowRep& arrow) = 0;
    virtual void Draw(const Kiv2DTextRep& text) = 0;
    virtual void Draw(const Kiv2DPolylineRep& curve) = 0;
    virtual void Draw(const Kiv2DPointRep& point) = 0;

protected:
    ~Kiv2DCanvas() = default;
};

// Something that a 2D viewer shows. It lives in a bag, which owns it; whoever else points at it does so by a
// KivWeakPtr. A change of it is seen after the viewer's next Redraw.
class Kiv2DRepresentation : public KivClass<Kiv2DRepresentation, KivCommand> {
public:
    static constexpr const char* Name = "Kiv2DRepresentation";

    // Passes itself to the canvas; what has no place in the world (not finite) is not drawn.
    virtual void DrawOn(Kiv2DCanvas& canvas) const = 0;

    // Its bag would not learn of it: Kiv2DBag::Remove takes a representation away.
    void RequestDelayedDestruction() = delete;

protected:
    explicit Kiv2DRepresentation(const char* kind) : KivClass(nullptr, kind) {}
};

#pragma once

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

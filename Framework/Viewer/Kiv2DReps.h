#pragma once

#include "Base/KivUnicodeString.h"
#include "Viewer/Kiv2DRepresentation.h"

#include <cmath>
#include <vector>

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

// The head of an arrow, without its shaft.
class Kiv2DArrowRep : public KivClass<Kiv2DArrowRep, Kiv2DRepresentation> {
public:
    static constexpr const char* Name = "Kiv2DArrowRep";
    // Where its tip is and the direction that it points in (of any length), its length in units of the world,
    // and half its width as a part of that length.
    Kiv2DArrowRep(const Kiv2DPoint& tip, const Kiv2DPoint& direction, double length, double ratio)
        : KivClass(Name), _tip(tip), _length(length), _ratio(ratio)
    {
        const double size = std::hypot(direction.x, direction.y);
        _direction = {direction.x / size, direction.y / size};
    }

    const Kiv2DPoint& GetTip() const { return _tip; }
    // Of length 1; not finite for a direction that is none.
    const Kiv2DPoint& GetDirection() const { return _direction; }
    double GetLength() const { return _length; }
    double GetRatio() const { return _ratio; }

    void DrawOn(Kiv2DCanvas& canvas) const override
    {
        if (_tip.IsFinite() && _direction.IsFinite() && std::isfinite(_length) && std::isfinite(_ratio))
            canvas.Draw(*this);
    }

private:
    Kiv2DPoint _tip, _direction;
    double _length, _ratio;
};

// Which point of a text lies at its position. Row by row: its view counts on that.
enum class Kiv2DAnchor { TopLeft, Top, TopRight, Left, Center, Right, BottomLeft, Bottom, BottomRight };

// One line of text. It is as large at every scale of the world as the view's font; where it would leave the
// picture it is moved in, where it is too long it is shortened.
class Kiv2DTextRep : public KivClass<Kiv2DTextRep, Kiv2DRepresentation> {
public:
    static constexpr const char* Name = "Kiv2DTextRep";
    Kiv2DTextRep(const Kiv2DPoint& position, const KivUnicodeString& text, Kiv2DAnchor anchor)
        : KivClass(Name), _position(position), _text(text), _anchor(anchor)
    {}

    void SetPosition(const Kiv2DPoint& position) { _position = position; }
    const Kiv2DPoint& GetPosition() const { return _position; }
    void SetText(const KivUnicodeString& text) { _text = text; }
    const KivUnicodeString& GetText() const { return _text; }
    Kiv2DAnchor GetAnchor() const { return _anchor; }

    void DrawOn(Kiv2DCanvas& canvas) const override
    {
        if (_position.IsFinite()) canvas.Draw(*this);
    }

private:
    Kiv2DPoint _position;
    KivUnicodeString _text;
    Kiv2DAnchor _anchor;
};

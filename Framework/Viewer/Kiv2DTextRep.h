#pragma once

#include "Base/KivUnicodeString.h"
#include "Viewer/Kiv2DRepresentation.h"

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

#pragma once

#include "Base/KivUnicodeString.h"

#include <span>

// A color of three components from 0 to 255.
struct KivColor {
    unsigned int red = 0;
    unsigned int green = 0;
    unsigned int blue = 0;
    friend bool operator==(const KivColor&, const KivColor&) = default;
};

struct KivNamedColor {
    const char* name; // key of its display name in the framework's text catalogue
    KivColor color;
};

// The palette that color combos offer, in its order.
std::span<const KivNamedColor> KivColorPalette();

// How a color is called: its name in the palette, else its components ("Custom (12, 34, 56)").
KivUnicodeString KivColorName(const KivColor& color);
// The same for a screen reader, always with the components.
KivUnicodeString KivSpokenColorName(const KivColor& color);

#pragma once

#include "Base/KivUnicodeString.h"

#include <span>

// A colour of three components from 0 to 255.
struct KivColour {
    unsigned int red = 0;
    unsigned int green = 0;
    unsigned int blue = 0;
    friend bool operator==(const KivColour&, const KivColour&) = default;
};

struct KivNamedColour {
    const char* name; // key of its display name in the framework's text catalogue
    KivColour colour;
};

// The palette that colour combos offer, in its order.
std::span<const KivNamedColour> KivColourPalette();

// How a colour is called: its name in the palette, else its components ("Custom (12, 34, 56)").
KivUnicodeString KivColourName(const KivColour& colour);
// The same for a screen reader, always with the components.
KivUnicodeString KivSpokenColourName(const KivColour& colour);

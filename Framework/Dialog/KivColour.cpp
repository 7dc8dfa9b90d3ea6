#include "Dialog/KivColour.h"

#include "Dialog/KivTextCatalogue.h"

#include <string>

namespace {

constexpr KivNamedColour kPalette[] = {
    {"ColourBlack", {0, 0, 0}},           {"ColourDarkGrey", {64, 64, 64}}, {"ColourGrey", {128, 128, 128}},
    {"ColourLightGrey", {192, 192, 192}}, {"ColourWhite", {255, 255, 255}}, {"ColourMaroon", {128, 0, 0}},
    {"ColourRed", {255, 0, 0}},           {"ColourOrange", {255, 128, 0}},  {"ColourBrown", {128, 64, 0}},
    {"ColourYellow", {255, 255, 0}},      {"ColourGreen", {0, 255, 0}},     {"ColourDarkGreen", {0, 128, 0}},
    {"ColourCyan", {0, 255, 255}},        {"ColourBlue", {0, 0, 255}},      {"ColourViolet", {128, 0, 255}},
    {"ColourMagenta", {255, 0, 255}},
};

KivUnicodeString Components(const KivColour& colour)
{
    return KivUnicodeString("(" + std::to_string(colour.red) + ", " + std::to_string(colour.green) + ", " +
                            std::to_string(colour.blue) + ")");
}

} // namespace

std::span<const KivNamedColour> KivColourPalette()
{
    return kPalette;
}

KivUnicodeString KivColourName(const KivColour& colour)
{
    for (const KivNamedColour& named : kPalette) {
        if (named.colour == colour) return KivTextCatalogue::FrameworkText(named.name);
    }
    return KivTextCatalogue::FrameworkText("ColourCustom") + " " + Components(colour);
}

KivUnicodeString KivSpokenColourName(const KivColour& colour)
{
    for (const KivNamedColour& named : kPalette) {
        if (named.colour == colour) return KivColourName(colour) + " " + Components(colour);
    }
    return KivColourName(colour);
}

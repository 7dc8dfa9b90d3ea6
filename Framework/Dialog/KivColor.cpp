#include "Dialog/KivColor.h"

#include "Base/KivTextCatalogue.h"

#include <string>

namespace {

constexpr KivNamedColor kPalette[] = {
    {"ColorBlack", {0, 0, 0}},           {"ColorDarkGray", {64, 64, 64}}, {"ColorGray", {128, 128, 128}},
    {"ColorLightGray", {192, 192, 192}}, {"ColorWhite", {255, 255, 255}}, {"ColorMaroon", {128, 0, 0}},
    {"ColorRed", {255, 0, 0}},           {"ColorOrange", {255, 128, 0}},  {"ColorBrown", {128, 64, 0}},
    {"ColorYellow", {255, 255, 0}},      {"ColorGreen", {0, 255, 0}},     {"ColorDarkGreen", {0, 128, 0}},
    {"ColorCyan", {0, 255, 255}},        {"ColorBlue", {0, 0, 255}},      {"ColorViolet", {128, 0, 255}},
    {"ColorMagenta", {255, 0, 255}},
};

KivUnicodeString Number(unsigned int component)
{
    return KivUnicodeString(std::to_string(component));
}

} // namespace

std::span<const KivNamedColor> KivColorPalette()
{
    return kPalette;
}

KivUnicodeString KivColorName(const KivColor& color)
{
    for (const KivNamedColor& named : kPalette) {
        if (named.color == color) return KivTextCatalogue::FrameworkText(named.name);
    }
    return KivTextCatalogue::FrameworkText("ColorCustom",
                                           {Number(color.red), Number(color.green), Number(color.blue)});
}

KivUnicodeString KivSpokenColorName(const KivColor& color)
{
    for (const KivNamedColor& named : kPalette) {
        if (named.color == color)
            return KivTextCatalogue::FrameworkText("ColorSpoken", {KivColorName(color), Number(color.red),
                                                                   Number(color.green), Number(color.blue)});
    }
    return KivColorName(color);
}

#include "Dialog/KivComboColor.h"

KivComboColor::KivComboColor(KivDialog* parent, const KivString& name, unsigned long style, unsigned int red,
                             unsigned int green, unsigned int blue, int, int, int)
    : KivClass(parent, name, style)
{
    for (const KivNamedColor& named : KivColorPalette()) SetLine(KivColorName(named.color));
    SetSelectedColor(red, green, blue);
}

int KivComboColor::GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue) const
{
    if (!red || !green || !blue) return 0;
    // The line that is chosen is the color: a user's choice changes the line.
    const auto line = static_cast<std::size_t>(GetSelect());
    const KivColor chosen = line < KivColorPalette().size() ? KivColorPalette()[line].color : _color;
    *red = chosen.red;
    *green = chosen.green;
    *blue = chosen.blue;
    return 1;
}

int KivComboColor::GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue,
                                    KivUnicodeString* name) const
{
    if (!name || !GetSelectedColor(red, green, blue)) return 0;
    *name = KivColorName({*red, *green, *blue});
    return 1;
}

void KivComboColor::SetSelectedColor(unsigned int red, unsigned int green, unsigned int blue)
{
    _color = {red, green, blue};
    const auto palette = KivColorPalette();
    int line = 0;
    for (const KivNamedColor& named : palette) {
        if (named.color == _color) break;
        ++line;
    }
    const int own = static_cast<int>(palette.size());
    if (line == own) SetLine(KivColorName(_color), own, GetLineCount() > own ? Mode::Replace : Mode::Insert);
    SetSelect(line);
}

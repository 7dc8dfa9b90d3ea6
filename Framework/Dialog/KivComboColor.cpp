#include "Dialog/KivComboColor.h"

KivComboColor::KivComboColor(KivDialog* parent, const KivString& name, unsigned long style, unsigned int red,
                             unsigned int green, unsigned int blue, int, int, int)
    : KivClass(parent, name, style)
{
    for (const KivNamedColour& named : KivColourPalette()) SetLine(KivColourName(named.colour));
    SetSelectedColor(red, green, blue);
}

int KivComboColor::GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue) const
{
    if (!red || !green || !blue) return 0;
    // The line that is chosen is the colour: a user's choice changes the line.
    const auto line = static_cast<std::size_t>(GetSelect());
    const KivColour chosen = line < KivColourPalette().size() ? KivColourPalette()[line].colour : _colour;
    *red = chosen.red;
    *green = chosen.green;
    *blue = chosen.blue;
    return 1;
}

int KivComboColor::GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue,
                                    KivUnicodeString* name) const
{
    if (!name || !GetSelectedColor(red, green, blue)) return 0;
    *name = KivColourName({*red, *green, *blue});
    return 1;
}

void KivComboColor::SetSelectedColor(unsigned int red, unsigned int green, unsigned int blue)
{
    _colour = {red, green, blue};
    const auto palette = KivColourPalette();
    int line = 0;
    for (const KivNamedColour& named : palette) {
        if (named.colour == _colour) break;
        ++line;
    }
    const int own = static_cast<int>(palette.size());
    if (line == own)
        SetLine(KivColourName(_colour), own, GetLineCount() > own ? Mode::Replace : Mode::Insert);
    SetSelect(line);
}

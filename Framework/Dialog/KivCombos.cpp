#include "Dialog/KivCombos.h"

#include "Base/KivTextCatalogue.h"
#include "Parameter/KivNumberFormat.h"

#include <string>

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

void KivNumberedCombo::SetSelect(unsigned int number)
{
    const bool isThere = number >= 1 && number <= static_cast<unsigned int>(GetLineCount());
    KivDlgCombo::SetSelect(isThere ? static_cast<int>(number) - 1 : -1);
}

KivComboDashed::KivComboDashed(KivDialog* parent, const KivString& name, unsigned long style, unsigned int,
                               int)
    : KivClass(parent, name, style)
{
    for (unsigned int type = 1; type <= kStandardTypes; ++type)
        SetLine(KivTextCatalogue::FrameworkText(("LineType" + std::to_string(type)).c_str()));
    SetSelect(1);
}

void KivComboDashed::AddOtherType(const KivString& type, int count)
{
    for (int i = 0; i < count; ++i) SetLine(KivTextCatalogue::FrameworkText(type.ConvertToChar()));
}

KivComboSymbol::KivComboSymbol(KivDialog* parent, const KivString& name, unsigned long style)
    : KivClass(parent, name, style)
{
    for (unsigned int symbol = 1; symbol <= kSymbols; ++symbol)
        SetLine(KivTextCatalogue::FrameworkText(("PointSymbol" + std::to_string(symbol)).c_str()));
    SetSelect(1);
}

KivComboWeight::KivComboWeight(KivDialog* parent, const KivString& name, unsigned long style, unsigned int,
                               int)
    : KivClass(parent, name, style)
{
    for (const double thickness : kMillimeters) SetLine(KivPrintNumber(thickness, "%g", 2) + " mm");
    SetSelect(0U);
}

void KivComboWeight::SetSelect(unsigned int weight)
{
    KivDlgCombo::SetSelect(weight < kMillimeters.size() ? static_cast<int>(weight) : -1);
}

float KivGetMMThickness(int weight, int)
{
    const auto& table = KivComboWeight::kMillimeters;
    const auto index = static_cast<std::size_t>(weight);
    return weight >= 0 && index < table.size() ? static_cast<float>(table[index]) : 0.0F;
}

#include "Dialog/KivComboSymbol.h"

#include "Base/KivTextCatalogue.h"

#include <string>

KivComboSymbol::KivComboSymbol(KivDialog* parent, const KivString& name, unsigned long style)
    : KivClass(parent, name, style)
{
    for (unsigned int symbol = 1; symbol <= kSymbols; ++symbol)
        SetLine(KivTextCatalogue::FrameworkText(("PointSymbol" + std::to_string(symbol)).c_str()));
    SetSelect(1);
}

void KivComboSymbol::SetSelect(unsigned int symbol)
{
    const bool isThere = symbol >= 1 && symbol <= static_cast<unsigned int>(GetLineCount());
    KivDlgCombo::SetSelect(isThere ? static_cast<int>(symbol) - 1 : -1);
}

#include "Dialog/KivComboDashed.h"

#include "Base/KivTextCatalogue.h"

#include <string>

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

void KivComboDashed::SetSelect(unsigned int type)
{
    const bool isThere = type >= 1 && type <= static_cast<unsigned int>(GetLineCount());
    KivDlgCombo::SetSelect(isThere ? static_cast<int>(type) - 1 : -1);
}

#include "Dialog/KivComboWeight.h"

#include "Parameter/KivNumberFormat.h"

KivComboWeight::KivComboWeight(KivDialog* parent, const KivString& name, unsigned long style, unsigned int,
                               int)
    : KivClass(parent, name, style)
{
    for (const double thickness : kMillimeters) SetLine(KivPrintNumber(thickness, "%g", 2) + " mm");
    SetSelect(0U);
}

void KivComboWeight::SetSelect(unsigned int weight)
{
    if (weight < kMillimeters.size()) KivDlgCombo::SetSelect(static_cast<int>(weight));
}

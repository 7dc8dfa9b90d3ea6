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
    KivDlgCombo::SetSelect(weight < kMillimeters.size() ? static_cast<int>(weight) : -1);
}

#include "Dialog/KivDlgFrame.h"

#include "Dialog/KivDlgRadioButton.h"

KivUnicodeString KivDlgFrame::GetShownValue() const
{
    for (const KivDialog* child : Children()) {
        if (!child->IsAKindOf(KivDlgRadioButton::Name)) continue;
        if (KivUnicodeString chosen = child->GetShownValue(); !chosen.IsEmpty()) return chosen;
    }
    return {};
}

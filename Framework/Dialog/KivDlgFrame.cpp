#include "Dialog/KivDlgFrame.h"

#include "Dialog/KivDlgButtons.h"

KivUnicodeString KivDlgFrame::GetShownValue() const
{
    for (const KivDialog* child : Children()) {
        if (!child->IsAKindOf(KivDlgRadioButton::Name)) continue;
        if (KivUnicodeString chosen = child->GetShownValue(); !chosen.IsEmpty()) return chosen;
    }
    return {};
}

KivDlgToolsOptionsFrame::KivDlgToolsOptionsFrame(KivDialog* parent, const KivString& name,
                                                 const KivString& icon)
    : KivClass(parent, name, KivDlgGridLayout)
{
    SetIconName(icon, "", "", "", 0);
}

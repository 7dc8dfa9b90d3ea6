#include "Dialog/KivDlgToolsOptionsFrame.h"

KivDlgToolsOptionsFrame::KivDlgToolsOptionsFrame(KivDialog* parent, const KivString& name,
                                                 const KivString& icon)
    : KivClass(parent, name, KivDlgGridLayout)
{
    SetIconName(icon, "", "", "", 0);
}

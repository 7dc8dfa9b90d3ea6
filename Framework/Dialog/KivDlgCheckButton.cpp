#include "Dialog/KivDlgCheckButton.h"

#include "Base/KivTextCatalogue.h"

KivUnicodeString KivDlgCheckButton::GetShownValue() const
{
    return KivTextCatalogue::FrameworkText(_state == KivDlgChecked ? "ValueOn" : "ValueOff");
}

void KivDlgCheckButton::SetState(unsigned long state, int notify)
{
    _state = state == KivDlgChecked ? KivDlgChecked : KivDlgUnchecked;
    Changed();
    if (notify) SendNotification(&_modified);
}

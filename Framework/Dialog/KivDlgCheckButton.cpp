#include "Dialog/KivDlgCheckButton.h"

void KivDlgCheckButton::SetState(unsigned long state, int notify)
{
    _state = state == KivDlgChecked ? KivDlgChecked : KivDlgUnchecked;
    Changed();
    if (notify) SendNotification(&_modified);
}

#include "Lock/KivDrwLockCheckButton.h"

KivDrwLockCheckButton::KivDrwLockCheckButton(KivSettingRepository* repository, const KivString& attributeName,
                                             KivDialog* parent, const KivString& name, unsigned long style)
    : KivDrwLockControlOf(repository, attributeName, parent, name)
{
    Wrap(MakeControl(name, style));
}

KivDrwLockCheckButton::KivDrwLockCheckButton(KivDialog* parent, const KivString& name,
                                             const KivSettingInfo& info, unsigned long style)
    : KivDrwLockControlOf(parent, name, info)
{
    Wrap(MakeControl(name, style));
}

unsigned long KivDrwLockCheckButton::GetState() const
{
    return Wrapped() ? Wrapped()->GetState() : KivDlgUnchecked;
}

void KivDrwLockCheckButton::SetState(unsigned long state, int notify)
{
    if (Wrapped()) Wrapped()->SetState(state, notify);
}

KivNotification* KivDrwLockCheckButton::GetChkBModifyNotification() const
{
    return Wrapped() ? Wrapped()->GetChkBModifyNotification() : nullptr;
}

KivNotification* KivDrwLockCheckButton::GetChkBDoubleClickNotification() const
{
    return Wrapped() ? Wrapped()->GetChkBDoubleClickNotification() : nullptr;
}

#include "Lock/KivDrwLockCombo.h"

KivDrwLockCombo::KivDrwLockCombo(KivSettingRepository* repository, const KivString& attributeName,
                                 KivDialog* parent, const KivString& name, unsigned long style)
    : KivDrwLockControlOf(repository, attributeName, parent, name)
{
    Wrap(MakeControl(name, style));
}

KivDrwLockCombo::KivDrwLockCombo(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                                 unsigned long style)
    : KivDrwLockControlOf(parent, name, info)
{
    Wrap(MakeControl(name, style));
}

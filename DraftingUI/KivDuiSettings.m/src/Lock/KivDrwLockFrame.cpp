#include "Lock/KivDrwLockFrame.h"

#include <new>

KivDrwLockFrame::KivDrwLockFrame(KivSettingRepository* repository, const KivString& attributeName,
                                 KivDialog* parent, const KivString& name, unsigned long style)
    : KivClass(repository, attributeName, parent, name)
{
    Wrap(new (std::nothrow) KivDlgFrame(this, name + "locked", style));
}

KivDrwLockFrame::KivDrwLockFrame(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                                 unsigned long style)
    : KivClass(parent, name, info)
{
    Wrap(new (std::nothrow) KivDlgFrame(this, name + "locked", style));
}

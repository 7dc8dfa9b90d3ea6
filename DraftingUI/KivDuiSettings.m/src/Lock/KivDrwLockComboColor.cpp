#include "Lock/KivDrwLockComboColor.h"

KivDrwLockComboColor::KivDrwLockComboColor(KivSettingRepository* repository, const KivString& attributeName,
                                           KivDialog* parent, const KivString& name, unsigned long style,
                                           unsigned int red, unsigned int green, unsigned int blue, int flag)
    : KivDrwLockControlOf(repository, attributeName, parent, name)
{
    Wrap(MakeControl(name, style, red, green, blue, flag, 0, 0));
}

KivDrwLockComboColor::KivDrwLockComboColor(KivDialog* parent, const KivString& name,
                                           const KivSettingInfo& info)
    : KivDrwLockControlOf(parent, name, info)
{
    // White until the page sets the real color.
    Wrap(MakeControl(name, 0UL, 255U, 255U, 255U, 0, 0, 0));
}

KivDlgCombo* KivDrwLockComboColor::GetCombo() const
{
    return Wrapped() ? Wrapped()->GetCombo() : nullptr;
}

int KivDrwLockComboColor::GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue) const
{
    return Wrapped() ? Wrapped()->GetSelectedColor(red, green, blue) : 0;
}

int KivDrwLockComboColor::GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue,
                                           KivUnicodeString* name) const
{
    if (Wrapped()) Wrapped()->GetSelectedColor(red, green, blue, name);
    return 0;
}

void KivDrwLockComboColor::SetSelectedColor(unsigned int red, unsigned int green, unsigned int blue)
{
    if (Wrapped()) Wrapped()->SetSelectedColor(red, green, blue);
}

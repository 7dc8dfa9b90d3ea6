#include "Lock/KivDrwLockComboWeight.h"

KivDrwLockComboWeight::KivDrwLockComboWeight(KivSettingRepository* repository, const KivString& attributeName,
                                             KivDialog* parent, const KivString& name, unsigned long style,
                                             unsigned int variant)
    : KivDrwLockControlOf(repository, attributeName, parent, name)
{
    Wrap(MakeControl(name, style, variant, 0));
}

KivDlgCombo* KivDrwLockComboWeight::GetCombo() const
{
    return Wrapped() ? Wrapped()->GetCombo() : nullptr;
}

unsigned int KivDrwLockComboWeight::GetSelect() const
{
    return Wrapped() ? Wrapped()->GetSelect() : 1;
}

void KivDrwLockComboWeight::SetSelect(unsigned int weight)
{
    if (Wrapped()) Wrapped()->SetSelect(weight);
}

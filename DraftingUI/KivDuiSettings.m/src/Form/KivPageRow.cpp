#include "Form/KivPageRow.h"

void KivPageRow::ShowLock()
{
    if (KivDrwLockDialog* control = Control()) control->SetInfo(_property.Info());
}

void KivPageRow::ShowInForce()
{
    ShowLock();
    _property.Load();
    Show();
}

bool KivPageRow::IsSender(const KivCommand* from) const
{
    const KivDrwLockDialog* control = Control();
    return control && from && control->GetDialog() == from;
}

bool KivPageRow::ReadIfSender(const KivCommand* from)
{
    if (!IsSender(from)) return false;
    Read();
    if (_rule) _rule();
    return true;
}

bool KivPageRow::Take(KivCommand* from)
{
    if (!IsSender(from)) return false;
    // No user could have sent it when it is locked: another row's value was mirrored here, or the lock has
    // arrived meanwhile. The store would refuse it.
    if (_property.Info().locked || !Read()) {
        ShowInForce();
        return true;
    }
    // Storing tells others, who may destroy the page and this row with it.
    const KivWeakPtr<KivDrwLockDialog> control(Control());
    _property.Save();
    if (!control) return true;
    ShowInForce();
    if (_rule) _rule();
    return true;
}

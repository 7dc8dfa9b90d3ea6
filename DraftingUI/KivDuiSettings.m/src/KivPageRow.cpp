#include "KivPageRow.h"

void KivPageRow::ShowLock()
{
    if (KivDrwLockDialog* control = Control()) control->SetInfo(_value.Info());
}

bool KivPageRow::Take(KivCommand* from)
{
    const KivDrwLockDialog* control = Control();
    if (control && control->GetDialog() == from && _value.Info().locked) {
        // No user could have sent this: another row's value was mirrored here. The store would refuse it, and
        // the page must not show what is not in force.
        _value.Load();
        Show();
        return true;
    }
    if (!Store(from)) return false;
    if (_rule) _rule();
    return true;
}

#include "KivPageRow.h"

void KivPageRow::ShowLock()
{
    if (KivDrwLockDialog* control = Control()) control->SetInfo(_value.Info());
}

bool KivPageRow::IsSender(const KivCommand* from) const
{
    const KivDrwLockDialog* control = Control();
    return control && from && control->GetDialog() == from;
}

bool KivPageRow::Read(const KivCommand* from)
{
    if (!IsSender(from)) return false;
    Read();
    if (_rule) _rule();
    return true;
}

bool KivPageRow::Take(KivCommand* from)
{
    if (!IsSender(from)) return false;
    if (_value.Info().locked) {
        // No user could have sent this: another row's value was mirrored here. The store would refuse it, and
        // the page must not show what is not in force.
        _value.Load();
        Show();
        return true;
    }
    if (!ReadToStore()) return true;
    // Storing tells others, who may destroy the page and this row with it.
    const KivWeakPtr<KivDrwLockDialog> control(Control());
    _value.Save();
    if (control && _rule) _rule();
    return true;
}

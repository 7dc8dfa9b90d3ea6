#include "Dialog/KivDlgLock.h"

KivDlgLock::KivDlgLock(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                       unsigned long style)
    : KivClass(parent, name, style), _info(info)
{}

void KivDlgLock::SetInfo(const KivSettingInfo& info)
{
    _info = info;
    Changed();
    for (const KivWeakPtr<KivDialog>& dialog : _associated) {
        if (dialog) dialog->EnablingChanged();
    }
}

void KivDlgLock::AddAssociatedDialog(KivDialog* dialog)
{
    if (!dialog) return;
    _associated.emplace_back(dialog);
    dialog->_lock = this;
    dialog->EnablingChanged();
}

void KivDlgLock::GetAssociatedDialogSensitivity(unsigned long& sensitivity) const
{
    sensitivity = IsLocked() ? KivDlgDisabled : KivDlgEnabled;
}

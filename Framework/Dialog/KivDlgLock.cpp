#include "Dialog/KivDlgLock.h"

#include "Settings/KivSettingRepository.h"

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

bool KivDlgLock::Toggle()
{
    KivSettingRepository* repository = KivSettingRepository::GetRepository(_info.repository.ConvertToChar());
    const bool locked = !_info.lockedHere;
    if (!IsSwitch() || !repository) return false;
    if (repository->SetLock(_info.key.ConvertToChar(), locked) != S_OK) return false;
    // One that an outer layer locks is closed already.
    for (const KivString& companion : _info.companions) {
        repository->SetLock(companion.ConvertToChar(), locked);
    }
    KivSettingInfo info;
    repository->GetInfo(_info.key.ConvertToChar(), &info, 0);
    info.companions = _info.companions;
    SetInfo(info);
    return true;
}

void KivDlgLock::AddAssociatedDialog(KivDialog* dialog)
{
    if (!dialog) return;
    _associated.emplace_back(dialog);
    dialog->_lock = this;
    dialog->EnablingChanged();
}

KivDialog* KivDlgLock::GetAssociatedDialog() const
{
    for (const KivWeakPtr<KivDialog>& dialog : _associated) {
        if (dialog) return dialog.Get();
    }
    return nullptr;
}

void KivDlgLock::GetAssociatedDialogSensitivity(unsigned long& sensitivity) const
{
    sensitivity = IsLocked() ? KivDlgDisabled : KivDlgEnabled;
}

#include "Lock/KivDrwLockDialog.h"

#include "Settings/KivSettingRepository.h"

#include <new>

namespace {

// An unknown attribute leaves the record empty: its padlock is open.
KivSettingInfo InfoOf(KivSettingRepository* repository, const KivString& attributeName)
{
    KivSettingInfo info;
    if (repository) repository->GetInfo(attributeName.ConvertToChar(), &info, 0);
    return info;
}

} // namespace

KivDrwLockDialog::KivDrwLockDialog(KivSettingRepository* repository, const KivString& attributeName,
                                   KivDialog* parent, const KivString& name)
    : KivDrwLockDialog(parent, name, InfoOf(repository, attributeName))
{
    _repository = repository;
}

KivDrwLockDialog::KivDrwLockDialog(KivDialog* parent, const KivString& name, const KivSettingInfo& info)
    : KivClass(parent, name)
{
    _lock = new (std::nothrow) KivDlgLock(this, name + "Lock", info, 0);
}

KivDialog* KivDrwLockDialog::GetDialog() const
{
    return _dialog.Get();
}

void KivDrwLockDialog::Wrap(KivDialog* control)
{
    _dialog = control;
    Initialize();
}

void KivDrwLockDialog::Initialize()
{
    if (!_dialog || !_lock) return;
    _lock->AddAssociatedDialog(_dialog.Get());
    _lock->SetGridConstraints(0, 0, 1, 1, KivDlgAttachAllSides);
    _dialog->SetGridConstraints(0, 1, 1, 1, KivDlgAttachLeftCentered);
    SetTitle(KivDlgFrame::GetTitle());
    // Only the inner two carry tooltips.
    KivDlgFrame::SetShortHelp("");
    KivDlgFrame::SetHelp("");
    SetLongHelp(KivDlgFrame::GetLongHelp());
}

void KivDrwLockDialog::SetInfo(const KivSettingInfo& info)
{
    if (_lock) _lock->SetInfo(info);
}

void KivDrwLockDialog::SetDescriber(const KivSettingDescriber& describer)
{
    if (_lock) _lock->SetDescriber(describer);
}

void KivDrwLockDialog::SetSensitivity(unsigned long sensitivity)
{
    if (!_dialog || !_lock) return;
    unsigned long forced = 0;
    _lock->GetAssociatedDialogSensitivity(forced);
    if (forced != KivDlgDisabled) _dialog->SetSensitivity(sensitivity);
}

unsigned long KivDrwLockDialog::GetSensitivity() const
{
    if (!_dialog || !_lock) return KivDlgDisabled;
    unsigned long forced = KivDlgDisabled;
    _lock->GetAssociatedDialogSensitivity(forced);
    return forced == KivDlgDisabled ? KivDlgDisabled : _dialog->GetSensitivity();
}

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

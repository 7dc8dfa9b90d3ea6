#include "KivDrwLockDialog.h"

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
    : KivClass(parent, name, KivDlgGridLayout)
{
    _lock = new (std::nothrow) KivDlgLock(this, name + "Lock", info, 0);
}

KivString KivDrwLockDialog::GetName() const
{
    return _dialog ? _dialog->GetName() : KivDlgFrame::GetName();
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
    _dialog->SetGridConstraints(0, 1, 1, 1, KivDlgAttachLeftCentred);
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

void KivDrwLockDialog::SetTitle(const KivUnicodeString& title)
{
    if (_dialog) _dialog->SetTitle(title);
}
KivUnicodeString KivDrwLockDialog::GetTitle() const
{
    return _dialog ? _dialog->GetTitle() : KivDlgFrame::GetTitle();
}

void KivDrwLockDialog::SetIconName(const KivString& normal, const KivString& focused,
                                   const KivString& pressed, const KivString& disabled)
{
    if (_dialog) _dialog->SetIconName(normal, focused, pressed, disabled, 0);
}

void KivDrwLockDialog::SetHelp(const KivUnicodeString& help)
{
    if (_lock) _lock->SetHelp(help);
    if (_dialog) _dialog->SetHelp(help);
}
KivUnicodeString KivDrwLockDialog::GetHelp() const
{
    return _dialog ? _dialog->GetHelp() : KivDlgFrame::GetHelp();
}
void KivDrwLockDialog::SetShortHelp(const KivUnicodeString& help)
{
    if (_lock) _lock->SetShortHelp(help);
    if (_dialog) _dialog->SetShortHelp(help);
}
KivUnicodeString KivDrwLockDialog::GetShortHelp() const
{
    return _dialog ? _dialog->GetShortHelp() : KivDlgFrame::GetShortHelp();
}
void KivDrwLockDialog::SetLongHelp(const KivUnicodeString& help)
{
    if (_lock) _lock->SetLongHelp(help);
    if (_dialog) _dialog->SetLongHelp(help);
}
KivUnicodeString KivDrwLockDialog::GetLongHelp() const
{
    return _dialog ? _dialog->GetLongHelp() : KivDlgFrame::GetLongHelp();
}

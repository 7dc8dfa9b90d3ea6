#include "Lock/KivDrwLockRow.h"

#include <new>

KivString KivDrwLockRow::GetName() const
{
    return _dialog ? _dialog->GetName() : KivDlgFrame::GetName();
}

void KivDrwLockRow::SetTitle(const KivUnicodeString& title)
{
    if (_dialog) _dialog->SetTitle(title);
}
KivUnicodeString KivDrwLockRow::GetTitle() const
{
    return _dialog ? _dialog->GetTitle() : KivDlgFrame::GetTitle();
}

void KivDrwLockRow::SetIconName(const KivString& normal, const KivString& focused, const KivString& pressed,
                                const KivString& disabled)
{
    if (_dialog) _dialog->SetIconName(normal, focused, pressed, disabled, 0);
}

void KivDrwLockRow::SetHelp(const KivUnicodeString& help)
{
    if (_lock) _lock->SetHelp(help);
    if (_dialog) _dialog->SetHelp(help);
}
KivUnicodeString KivDrwLockRow::GetHelp() const
{
    return _dialog ? _dialog->GetHelp() : KivDlgFrame::GetHelp();
}
void KivDrwLockRow::SetShortHelp(const KivUnicodeString& help)
{
    if (_lock) _lock->SetShortHelp(help);
    if (_dialog) _dialog->SetShortHelp(help);
}
KivUnicodeString KivDrwLockRow::GetShortHelp() const
{
    return _dialog ? _dialog->GetShortHelp() : KivDlgFrame::GetShortHelp();
}
void KivDrwLockRow::SetLongHelp(const KivUnicodeString& help)
{
    if (_lock) _lock->SetLongHelp(help);
    if (_dialog) _dialog->SetLongHelp(help);
}
KivUnicodeString KivDrwLockRow::GetLongHelp() const
{
    return _dialog ? _dialog->GetLongHelp() : KivDlgFrame::GetLongHelp();
}

KivDrwLockLabel::KivDrwLockLabel(KivDialog* parent, const KivString& name, int withLabel)
    : KivClass(parent, name)
{
    _spacer = new (std::nothrow) KivDlgCheckButton(this, name, 0);
    if (withLabel) _dialog = new (std::nothrow) KivDlgLabel(this, name, 0);
    SetTitle(KivDlgFrame::GetTitle());
    if (_spacer) {
        // With a padlock's icon its cell has exactly a padlock's size.
        _spacer->SetIconName("CheckLock", "", "", "", 0);
        _spacer->SetVisibility(KivDlgReserved);
        _spacer->SetGridConstraints(0, 0, 1, 1, KivDlgAttachAllSides);
    }
    if (_dialog) _dialog->SetGridConstraints(0, 1, 1, 1, KivDlgAttachLeftCentered);
}

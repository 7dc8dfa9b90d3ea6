#include "Lock/KivDrwLockRow.h"

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

#include "KivDrwLockLabel.h"

#include <new>

KivDrwLockLabel::KivDrwLockLabel(KivDialog* parent, const KivString& name, int withLabel)
    : KivClass(parent, name, KivDlgGridLayout)
{
    _spacer = new (std::nothrow) KivDlgCheckButton(this, name, 0);
    if (withLabel) _label = new (std::nothrow) KivDlgLabel(this, name, 0);
    SetTitle(KivDlgFrame::GetTitle());
    if (_spacer) {
        // With a padlock's icon its cell has exactly a padlock's size.
        _spacer->SetIconName("CheckLock", "", "", "", 0);
        _spacer->SetVisibility(KivDlgReserved);
        _spacer->SetGridConstraints(0, 0, 1, 1, KivDlgAttachAllSides);
    }
    if (_label) _label->SetGridConstraints(0, 1, 1, 1, KivDlgAttachLeftCentred);
}

KivString KivDrwLockLabel::GetName() const
{
    return _label ? _label->GetName() : KivDlgFrame::GetName();
}

void KivDrwLockLabel::SetTitle(const KivUnicodeString& title)
{
    if (_label) _label->SetTitle(title);
}
KivUnicodeString KivDrwLockLabel::GetTitle() const
{
    return _label ? _label->GetTitle() : KivDlgFrame::GetTitle();
}

void KivDrwLockLabel::SetIconName(const KivString& normal, const KivString& focused, const KivString& pressed,
                                  const KivString& disabled)
{
    if (_label) _label->SetIconName(normal, focused, pressed, disabled, 0);
}

void KivDrwLockLabel::SetHelp(const KivUnicodeString& help)
{
    if (_label) _label->SetHelp(help);
}
KivUnicodeString KivDrwLockLabel::GetHelp() const
{
    return _label ? _label->GetHelp() : KivDlgFrame::GetHelp();
}
void KivDrwLockLabel::SetShortHelp(const KivUnicodeString& help)
{
    if (_label) _label->SetShortHelp(help);
}
KivUnicodeString KivDrwLockLabel::GetShortHelp() const
{
    return _label ? _label->GetShortHelp() : KivDlgFrame::GetShortHelp();
}
void KivDrwLockLabel::SetLongHelp(const KivUnicodeString& help)
{
    if (_label) _label->SetLongHelp(help);
}
KivUnicodeString KivDrwLockLabel::GetLongHelp() const
{
    return _label ? _label->GetLongHelp() : KivDlgFrame::GetLongHelp();
}

#include "Lock/KivDrwLockLabel.h"

#include <new>

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

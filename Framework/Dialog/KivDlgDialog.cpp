#include "Dialog/KivDlgDialog.h"

#include "Dialog/KivDlgView.h"

KivDlgDialog::KivDlgDialog(KivDialog* parent, const KivString& name, unsigned long style)
    : KivClass(parent, name, style)
{
    SetVisibility(KivDlgHidden);
}

void KivDlgDialog::VisibilityChanged()
{
    if (GetVisibility() == KivDlgShown && !GetView()) {
        const KivDialog* root = this;
        while (root->GetParentDialog()) root = root->GetParentDialog();
        if (KivDlgView* view = root->GetView()) view->WindowShown(*this);
    }
    KivDialog::VisibilityChanged();
}

#include "Dialog/KivDlgLabel.h"

void KivDlgLabel::SetLabelledControl(KivDialog* control)
{
    if (KivDialog* before = _control.Get(); before && before->GetLabel() == this) before->_label = nullptr;
    _control = control;
    if (control) control->_label = this;
    Changed();
}

void KivDlgLabel::SetGreysWithControl(bool greys)
{
    _greysWithControl = greys;
    Changed();
}

bool KivDlgLabel::IsEnabled() const
{
    return KivDialog::IsEnabled() && (!_greysWithControl || !_control || _control->IsEnabled());
}

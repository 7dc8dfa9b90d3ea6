#include "Dialog/KivDlgLabel.h"

void KivDlgLabel::SetLabelledControl(KivDialog* control)
{
    if (KivDialog* before = _control.Get(); before && before->GetLabel() == this) before->_label = nullptr;
    _control = control;
    if (control) control->_label = this;
    Changed();
}

bool KivDlgLabel::IsEnabled() const
{
    return KivDialog::IsEnabled() && (!_control || _control->IsEnabled());
}

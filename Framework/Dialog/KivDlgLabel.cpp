#include "Dialog/KivDlgLabel.h"

void KivDlgLabel::SetLabeledControl(KivDialog* control)
{
    if (KivDialog* before = _control.Get(); before && before->GetLabel() == this) before->_label = nullptr;
    _control = control;
    if (control) control->_label = this;
    Changed();
}

void KivDlgLabel::SetGraysWithControl(bool grays)
{
    _graysWithControl = grays;
    Changed();
}

bool KivDlgLabel::IsEnabled() const
{
    return KivDialog::IsEnabled() && (!_graysWithControl || !_control || _control->IsEnabled());
}

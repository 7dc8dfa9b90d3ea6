#include "Dialog/KivDlgLabel.h"

void KivDlgLabel::AddLabeledControl(KivDialog* control)
{
    if (!control) return;
    _controls.emplace_back(control);
    control->_label = this;
    Changed();
}

KivDialog* KivDlgLabel::GetLabeledControl() const
{
    KivDialog* first = nullptr;
    for (const KivWeakPtr<KivDialog>& control : _controls) {
        if (control && control->IsEnabled()) return control.Get();
        if (!first) first = control.Get();
    }
    return first;
}

void KivDlgLabel::SetGraysWithControl(bool grays)
{
    _graysWithControl = grays;
    Changed();
}

bool KivDlgLabel::IsEnabled() const
{
    const KivDialog* control = _graysWithControl ? GetLabeledControl() : nullptr;
    return KivDialog::IsEnabled() && (!control || control->IsEnabled());
}

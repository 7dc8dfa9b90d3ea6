#include "Windows/KivDrwButtonWireFrameMod.h"

KivDrwButtonWireFrameMod::KivDrwButtonWireFrameMod(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, "KivDrwButtonGen")
{
    Build();
    Open();
}

void KivDrwButtonWireFrameMod::Build()
{
    const KivDrwLockFrame* frame =
        _form.Group(*this, "frmWireFrameMod", "").Radios("radioFrmWireFrameMod", _mode, _mode.Kind());
    const auto radio = [&](const char* name) {
        return static_cast<KivDlgRadioButton*>(frame->GetDialog()->FindDialog(name));
    };
    _hidden = radio("radioHidden");
    _hidden->SetGridConstraints(0, 0, 1, 2, KivDlgAttachAllSides);
    _visible = radio("radioVisible");
}

void KivDrwButtonWireFrameMod::ShowValues()
{
    KivDrwButtonDialog::ShowValues();
    if (!_hidden || !_visible) return;
    // Culled parts hide their wireframe: that is shown, but what was stored is written back, deliberately.
    const bool culled = KivDrwRead(_repository, KivDrwKeys::DrwOcclusionCulling) != 0;
    if (culled) _hidden->SetState(KivDlgChecked, 0);
    for (KivDlgRadioButton* radio : {_hidden.Get(), _visible.Get()})
        radio->SetSensitivity(culled ? KivDlgDisabled : KivDlgEnabled);
}

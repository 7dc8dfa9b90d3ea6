#include "Windows/KivDrwButtonWindows.h"

#include "Form/KivControlBindings.h"

namespace {

constexpr int kInherited = 0; // any other value is the number of a symbol
constexpr int kFirstSymbol = 1;
constexpr int kComboWidth = 5; // characters

} // namespace

KivDrwButtonGenFil::KivDrwButtonGenFil(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, "KivDrwButtonGen")
{
    Build();
    Open();
}

void KivDrwButtonGenFil::Build()
{
    const KivSettingKind& kind = _representation.Kind();
    const KivDrwLockFrame* frame = _form.Group(*this, "frameButtonGenFil", "I_DrwFrontView")
                                       .Radios("frameRadioGenFil", _representation, kind);
    // They were created in another order than they stand, deliberately: each stands where its number says.
    for (const KivSettingChoice& choice : kind.Choices()) {
        frame->GetDialog()
            ->FindDialog(choice.name)
            ->SetGridConstraints(static_cast<short>(choice.value - 1), 0, 1, 1, KivDlgAttachAllSides);
    }
}

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

KivDrwButtonProject3DPts::KivDrwButtonProject3DPts(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, "KivDrwButtonGen")
{
    Build();
    Open();
}

void KivDrwButtonProject3DPts::Build()
{
    KivDlgFrame& group = _form.Group(*this, "frameButtonProject3DPts", "").Frame();
    auto* frame = new KivDrwLockFrame(&group, "frameRadio3DSymbol", _symbol.Info(), KivDlgGridLayout);
    KivDialog* inner = frame->GetDialog();
    const auto radio = [&](const char* name, short row, short columns) {
        auto* button = new KivDlgRadioButton(inner, name, 0UL);
        button->SetGridConstraints(row, 0, 1, columns, KivDlgAttachAllSides);
        _form.Connect(button, button->GetRadBModifyNotification());
        return button;
    };
    _inherited = radio("radioSymbolInherit", 0, 2);
    _chosen = radio("radioSymbol", 1, 1);
    _combo = new KivComboSymbol(inner, "comboSymbol", 0UL);
    _combo->SetGridConstraints(1, 1, 1, 1, KivDlgAttachAllSides);
    _combo->SetVisibleTextWidth(kComboWidth);
    _form.Connect(_combo.Get(), _combo->GetCombo()->GetComboSelectNotification());
    _form.Add(std::make_unique<KivLockOnlyBinding>(frame, _symbol));
}

void KivDrwButtonProject3DPts::ShowValues()
{
    if (!_inherited || !_chosen || !_combo) return;
    const bool inherited = _symbol.cached == kInherited;
    (inherited ? _inherited : _chosen)->SetState(KivDlgChecked, 0);
    _combo->SetSensitivity(inherited ? KivDlgDisabled : KivDlgEnabled);
    // Some symbol is offered to who turns from the inherited one.
    if (!inherited || _combo->KivDlgCombo::GetSelect() < 0)
        _combo->SetSelect(static_cast<unsigned int>(inherited ? kFirstSymbol : _symbol.cached));
}

void KivDrwButtonProject3DPts::ReadFrom(KivCommand*)
{
    if (!_inherited || !_combo) return;
    const bool inherited = _inherited->GetState() == KivDlgChecked;
    _combo->SetSensitivity(inherited ? KivDlgDisabled : KivDlgEnabled);
    // A number that is no symbol's stays, with none chosen, until one is.
    if (inherited) {
        _symbol.cached = kInherited;
    } else if (_combo->KivDlgCombo::GetSelect() >= 0) {
        _symbol.cached = static_cast<int>(_combo->GetSelect());
    } else {
        _symbol.Load();
    }
}

KivDrwButtonLinetypeView::KivDrwButtonLinetypeView(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, "KivDrwButtonSettings")
{
    Build();
    Open();
}

void KivDrwButtonLinetypeView::Build()
{
    _form.SetCallback(&KivDrwButtonLinetypeView::OnChange);
    struct ViewKind {
        const char* label;
        const char* typeName;
        KivPropertyOf<unsigned int>& type;
        const char* typeKey;
        const char* thicknessName;
        KivPropertyOf<unsigned int>& thickness;
        const char* thicknessKey;
    };
    // Only the keys of the thicknesses begin with "Drw".
    const ViewKind kinds[] = {
        {"lblSection", "comboSectionLinetype", _sectionType, KivDrwKeys::SectionLinetype.name,
         "comboSectionThickness", _sectionThickness, KivDrwKeys::DrwSectionThickness.name},
        {"lblDetail", "comboDetailLinetype", _detailType, KivDrwKeys::DetailLinetype.name,
         "comboDetailThickness", _detailThickness, KivDrwKeys::DrwDetailThickness.name},
        {"lblBroken", "comboBrokenLinetype", _brokenType, KivDrwKeys::BrokenLinetype.name,
         "comboBrokenThickness", _brokenThickness, KivDrwKeys::DrwBrokenThickness.name},
        {"lblBreakout", "comboBreakoutLinetype", _breakoutType, KivDrwKeys::BreakoutLinetype.name,
         "comboBreakoutThickness", _breakoutThickness, KivDrwKeys::DrwBreakoutThickness.name},
        {"lblSkin", "comboSkinLinetype", _skinType, KivDrwKeys::SkinLinetype.name, "comboSkinThickness",
         _skinThickness, KivDrwKeys::DrwSkinThickness.name},
    };
    KivFormGroup group = _form.Group(*this, "frameButtonLinetype", "I_DrwFrontView");
    for (const ViewKind& kind : kinds) {
        KivFormRow row = group.Row(kind.label);
        row.LineType(kind.typeName, kind.type, _repository, kind.typeKey);
        row.LineWeight(kind.thicknessName, kind.thickness, _repository, kind.thicknessKey);
    }
}

void KivDrwButtonLinetypeView::OnChange(KivCommand*, KivNotification*, void*)
{
    _form.ReadAll();
}

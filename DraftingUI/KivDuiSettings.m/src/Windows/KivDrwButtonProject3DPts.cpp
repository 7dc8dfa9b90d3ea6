#include "Windows/KivDrwButtonProject3DPts.h"

#include "Form/KivControlBindings.h"

namespace {

constexpr int kInherited = 0; // any other value is the number of a symbol
constexpr int kFirstSymbol = 1;
constexpr int kComboWidth = 5; // characters

} // namespace

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

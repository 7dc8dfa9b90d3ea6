#include "Pages/KivDrwOptViewFrame.h"

#include "Base/KivTextCatalogue.h"
#include "Windows/KivDrwButtonGenFil.h"
#include "Windows/KivDrwButtonHRVView.h"
#include "Windows/KivDrwButtonLinetypeView.h"
#include "Windows/KivDrwButtonProject3DPts.h"
#include "Windows/KivDrwButtonRasterView.h"
#include "Windows/KivDrwButtonWireFrameMod.h"

namespace {

constexpr unsigned long kComboStyle = 0x40000;

} // namespace

void KivDrwOptViewFrame::Build()
{
    BuildElements();
    BuildGeneration();
    Group("frameClipping", "I_DrwClippingView")
        .Line()
        .Check("chkDimClipNoShow", _dimClipNoShow, _dimClipNoShow.Kind());
    KivFormGroup view3D = Group("frameView3D", "I_DrwZekView");
    view3D.Line().Check("chkQmtAnnotLay", _qmtAnnotLay);
    view3D.Line().Check("chkGeomOf2DLView", _geomOf2DLView);
}

void KivDrwOptViewFrame::BuildElements()
{
    _form.SetCallback(&KivDrwOptViewFrame::Write);
    KivFormGroup elements = Group("frameGenElem", "I_DrwFrontView");
    KivFormLine axis = elements.Line();
    axis.Check("_checkGenAxis", _genAxis);
    axis.Attached(KivDlgAttachAllSidesCentered).Check("_checkGenThread", _genThread);
    KivFormLine center = elements.Line();
    center.Check("_checkGenCenter", _genCenter);
    center.Check("_checkGenHiddenLines", _genHiddenLines);

    KivFormLine fillets = elements.Part("frameButtonGenFil", 3).Line();
    fillets.Check("_checkGenFil", _genFil);
    fillets.Spacer("invisibleLock2");
    BuildPush(fillets, "pushGenFil", &KivDrwOptViewFrame::PushGenFil);

    elements.Line().At(0, 2).Check("_checkGen3DColors", _gen3DColors);

    KivFormLine wireframe = elements.Part("frmWireFrame", 2).Line();
    wireframe.Check("checkGenWireFrame", _genWireFrame);
    BuildPush(wireframe.At(2), "pushGenWireFrameMod", &KivDrwOptViewFrame::WireFrameModButton);

    KivFormLine points = elements.Part("frameProject3DPts", 2).Line();
    points.Check("checkProject3DPts", _project3DPts);
    points.Spacer("invisibleLock3");
    BuildPush(points, "project3DPtsPushButton", &KivDrwOptViewFrame::Project3DPtsButton);

    elements.Line().At(0, 2).Check("checkGenApplyUncut", _genApplyUncut);

    KivFormLine lines = elements.Part("frameButtonLinetype", 3).Line("labelLinetype");
    lines.Spacer("invisibleLock1");
    BuildPush(lines, "linetypePushButton", &KivDrwOptViewFrame::LinetypeButton);
}

void KivDrwOptViewFrame::BuildGeneration()
{
    KivFormGroup generation = Group("frameGenView", "I_DrwFrontView");
    _form.SetCallback(&KivDrwOptViewFrame::GenFromVbxCallback);
    KivFormLine mode = generation.Part("frmViewMod", 2).Line("lbl");
    mode.Choice("combViewMod", _mode, _mode.Kind(), kComboStyle);
    _form.SetCallback(&KivDrwOptViewFrame::Write);
    mode.Spacer("lbl1");
    BuildPush(mode, "pushRasterOptions", &KivDrwOptViewFrame::PushRasterOptions);

    generation.Line().Check("chkExactPreview", _exactPreview);
    KivFormLine box = generation.Part("frmGenBox").Line();
    const KivDrwLockCheckButton* check = box.At(1).Check("checkGenBox", _genBox);
    box.Spinner("spinGenBox", _genBoxTol, _genBoxTol.Kind())->SetLongHelp(check->GetLongHelp());
    generation.Line().Check("chkOcclusionCulling", _occlusionCulling);
    generation.Line().Check("chkSelBodyInAss", _selBodyInAss, _selBodyInAss.Kind());
}

void KivDrwOptViewFrame::BuildPush(KivFormLine line, const KivString& name, Callback callback)
{
    KivDlgPushButton* button = line.Push(name);
    AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), callback, nullptr);
}

void KivDrwOptViewFrame::Initialize()
{
    KivDrwKeyPageFrame::Initialize();
    for (KivDialog* child : Children()) {
        if (child->IsAKindOf(KivDrwButtonDialog::Name) && !child->IsCondemned())
            static_cast<KivDrwButtonDialog*>(child)->Init();
    }
}

void KivDrwOptViewFrame::UpdateWidgets()
{
    KivPageFrame::UpdateWidgets();
    Enable("pushGenFil", _genFil.cached != 0);
    Enable("pushGenWireFrameMod", _genWireFrame.cached != 0);
    Enable("project3DPtsPushButton", _project3DPts.cached != 0);
    Enable("spinGenBox", _genBox.cached != 0);
    UpdateVbx();
}

// The generative view style governs the options of the page, unless the administrator prevents such styles.
bool KivDrwOptViewFrame::StyleGoverns() const
{
    return KivDrwRead(_repository, KivDrwKeys::DrwPreventGVS) == 0;
}

void KivDrwOptViewFrame::Enable(const char* name, bool enabled)
{
    KivDialog* control = FindDialog(name);
    if (!control) return;
    const unsigned long sensitivity = enabled ? KivDlgEnabled : KivDlgDisabled;
    if (control->IsAKindOf(KivDrwLockDialog::Name)) {
        static_cast<KivDrwLockDialog*>(control)->SetSensitivity(sensitivity);
    } else {
        control->SetSensitivity(sensitivity);
    }
}

bool KivDrwOptViewFrame::IsTicked(const char* check)
{
    const auto* button = static_cast<KivDrwLockCheckButton*>(FindDialog(check));
    return button && button->GetState() == KivDlgChecked;
}

void KivDrwOptViewFrame::Apply(const KivDrwViewRule& rule, bool styled)
{
    const int mode = _mode.cached;
    switch (styled ? rule.styled : (mode == KivDrwExactMode ? rule.exact : rule.other)) {
    case KivDrwWhen::Always:
        return Enable(rule.control, true);
    case KivDrwWhen::Never:
        return Enable(rule.control, false);
    case KivDrwWhen::Exact:
        return Enable(rule.control, mode == KivDrwExactMode);
    case KivDrwWhen::Raster:
        return Enable(rule.control, mode == KivDrwRasterMode);
    case KivDrwWhen::Pictures:
        return Enable(rule.control, mode == KivDrwRasterMode || mode == KivDrwHrvMode);
    case KivDrwWhen::UnlessCulling:
        return Enable(rule.control, _occlusionCulling.cached != 1);
    case KivDrwWhen::IfTicked:
        if (IsTicked(rule.check)) Enable(rule.control, true);
        return;
    }
}

void KivDrwOptViewFrame::UpdateVbx()
{
    if (!_repository) return;
    const bool styled = StyleGoverns();
    for (const KivDrwViewRule& rule : kKivDrwViewRules) Apply(rule, styled);
}

void KivDrwOptViewFrame::Write(KivCommand* from, KivNotification*, void*)
{
    if (!_repository) return;
    _form.ReadAll();
    _form.Store({&_occlusionCulling, &_exactPreview, &_genBox, &_genBoxTol, &_qmtAnnotLay, &_geomOf2DLView});
    // These two are stored only when their own button was pressed, deliberately.
    for (KivBoundValue* value : {&_dimClipNoShow, &_selBodyInAss}) {
        if (_form.IsSender(*value, from)) _form.Store({value});
    }
    Enable("spinGenBox", _genBox.cached != 0);
    // What the style or the mode governs is never written from here.
    if (StyleGoverns()) return;
    _form.Store({&_genHiddenLines, &_genApplyUncut, &_gen3DColors});
    if (_mode.cached == KivDrwExactMode) WriteExactOptions();
}

void KivDrwOptViewFrame::WriteExactOptions()
{
    _form.Store({&_genAxis, &_genCenter, &_genThread, &_genFil, &_genWireFrame, &_project3DPts});
    Enable("pushGenFil", _genFil.cached != 0);
    Enable("pushGenWireFrameMod", _genWireFrame.cached != 0);
    // Culled points cannot be projected, whether they are asked for or not.
    const bool culled = _occlusionCulling.cached == 1;
    Enable("checkProject3DPts", !culled);
    Enable("project3DPtsPushButton", !culled && _project3DPts.cached != 0);
}

void KivDrwOptViewFrame::GenFromVbxCallback(KivCommand* from, KivNotification*, void*)
{
    _form.Take(from);
    UpdateVbx();
    Write(nullptr, nullptr, nullptr);
}

// The window belongs to this page and destroys itself when it is closed.
template <class Window>
void KivDrwOptViewFrame::OpenWindow(const char* name, const char* catalogue, const char* title)
{
    auto* window = new Window(this, name);
    window->SetTitle(KivTextCatalogue::Open(catalogue).Text(title));
}

void KivDrwOptViewFrame::PushGenFil(KivCommand*, KivNotification*, void*)
{
    OpenWindow<KivDrwButtonGenFil>("panelGenFilTitle", "KivDrwButtonGen", "TitleGenFil");
}

void KivDrwOptViewFrame::Project3DPtsButton(KivCommand*, KivNotification*, void*)
{
    OpenWindow<KivDrwButtonProject3DPts>("panelProject3DPtsTitle", "KivDrwButtonGen", "TitleProject3DPts");
}

void KivDrwOptViewFrame::WireFrameModButton(KivCommand*, KivNotification*, void*)
{
    OpenWindow<KivDrwButtonWireFrameMod>("panelWireFrameMod", "KivDrwButtonGen", "TitleWireFrameMod");
}

void KivDrwOptViewFrame::LinetypeButton(KivCommand*, KivNotification*, void*)
{
    OpenWindow<KivDrwButtonLinetypeView>("LineTypeWnd", "KivDrwButtonSettings", "Title6");
}

void KivDrwOptViewFrame::PushRasterOptions(KivCommand*, KivNotification*, void*)
{
    // Both windows have the same name, deliberately.
    constexpr const char* kWindow = "panelRasterView";
    constexpr const char* kTitles = "KivDrwOptViewButton";
    if (_mode.cached == KivDrwRasterMode)
        OpenWindow<KivDrwButtonRasterView>(kWindow, kTitles, "TitleRasterOptions");
    if (_mode.cached == KivDrwHrvMode) OpenWindow<KivDrwButtonHRVView>(kWindow, kTitles, "TitleHRVOptions");
}

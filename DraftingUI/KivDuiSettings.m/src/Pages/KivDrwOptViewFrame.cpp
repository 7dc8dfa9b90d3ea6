#include "Pages/KivDrwOptViewFrame.h"

#include "Base/KivTextCatalogue.h"
#include "Windows/KivDrwButtonHRVView.h"
#include "Windows/KivDrwButtonRasterView.h"
#include "Windows/KivDrwButtonWindows.h"

namespace {

constexpr unsigned long kComboStyle = 0x40000;

// Generation modes, one bit each.
constexpr unsigned Bit(KivDrwGenerationMode mode)
{
    return 1U << mode;
}
constexpr unsigned kExact = Bit(KivDrwExactMode);
constexpr unsigned kRaster = Bit(KivDrwRasterMode);
constexpr unsigned kPictures = kRaster | Bit(KivDrwHrvMode); // they have options of their own
constexpr unsigned kEveryMode = kExact | Bit(KivDrwVbxMode) | kPictures;

} // namespace

// What the enabling table is made from.
struct KivDrwOptViewFrame::Controls {
    KivDrwLockCheckButton *axis, *thread, *center, *hiddenLines, *fillets, *colors, *wireframe, *points,
        *uncut;
    KivDrwLockCheckButton *exactPreview, *culling;
    KivDrwLockSpinner* boxTolerance;
    KivDlgPushButton *filletsPush, *wireframePush, *pointsPush, *linesPush, *picturesPush;
};

void KivDrwOptViewFrame::Build()
{
    Controls made{};
    BuildElements(made);
    BuildGeneration(made);
    Group("frameClipping", "I_DrwClippingView")
        .Row()
        .Check("chkDimClipNoShow", _dimClipNoShow, _dimClipNoShow.Kind());
    KivFormGroup view3D = Group("frameView3D", "I_DrwZekView");
    view3D.Row().Check("chkQmtAnnotLay", _qmtAnnotLay);
    view3D.Row().Check("chkGeomOf2DLView", _geomOf2DLView);

    _enabling = {
        {{made.axis, made.center, made.thread, made.fillets, made.wireframe}, {kExact}},
        {{made.hiddenLines, made.uncut, made.linesPush}, {kEveryMode}},
        {{made.colors}, {kExact | kRaster}},
        {{made.exactPreview, made.culling}, {kExact}, {kExact}},
        {{made.picturesPush}, {kPictures}, {kPictures}},
        {{made.filletsPush}, {kExact, &_genFil}},
        // Enabled although the style governs its check button, deliberately.
        {{made.wireframePush}, {kExact, &_genWireFrame}, {kEveryMode}},
        {{made.points}, {kExact, nullptr, &_occlusionCulling}},
        {{made.pointsPush}, {kExact, &_project3DPts, &_occlusionCulling}},
        {{made.boxTolerance}, {kEveryMode, &_genBox}, {kEveryMode, &_genBox}},
    };
}

void KivDrwOptViewFrame::BuildElements(Controls& made)
{
    _form.SetCallback(&KivDrwOptViewFrame::Write);
    KivFormGroup elements = Group("frameGenElem", "I_DrwFrontView");
    KivFormRow axis = elements.Row();
    made.axis = axis.Check("_checkGenAxis", _genAxis);
    made.thread = axis.Attached(KivDlgAttachAllSidesCentered).Check("_checkGenThread", _genThread);
    KivFormRow center = elements.Row();
    made.center = center.Check("_checkGenCenter", _genCenter);
    made.hiddenLines = center.Check("_checkGenHiddenLines", _genHiddenLines);

    KivFormRow fillets = elements.Part("frameButtonGenFil", 3).Row();
    made.fillets = fillets.Check("_checkGenFil", _genFil);
    fillets.Spacer("invisibleLock2");
    made.filletsPush = BuildPush(fillets, "pushGenFil", &KivDrwOptViewFrame::PushGenFil);

    made.colors = elements.Row().At(0, 2).Check("_checkGen3DColors", _gen3DColors);

    KivFormRow wireframe = elements.Part("frmWireFrame", 2).Row();
    made.wireframe = wireframe.Check("checkGenWireFrame", _genWireFrame);
    made.wireframePush =
        BuildPush(wireframe.At(2), "pushGenWireFrameMod", &KivDrwOptViewFrame::WireFrameModButton);

    KivFormRow points = elements.Part("frameProject3DPts", 2).Row();
    made.points = points.Check("checkProject3DPts", _project3DPts);
    points.Spacer("invisibleLock3");
    made.pointsPush = BuildPush(points, "project3DPtsPushButton", &KivDrwOptViewFrame::Project3DPtsButton);

    made.uncut = elements.Row().At(0, 2).Check("checkGenApplyUncut", _genApplyUncut);

    KivFormRow lines = elements.Part("frameButtonLinetype", 3).Row("labelLinetype");
    lines.Spacer("invisibleLock1");
    made.linesPush = BuildPush(lines, "linetypePushButton", &KivDrwOptViewFrame::LinetypeButton);
}

void KivDrwOptViewFrame::BuildGeneration(Controls& made)
{
    KivFormGroup generation = Group("frameGenView", "I_DrwFrontView");
    _form.SetCallback(&KivDrwOptViewFrame::GenFromVbxCallback);
    KivFormRow mode = generation.Part("frmViewMod", 2).Row("lbl");
    mode.Choice("combViewMod", _mode, _mode.Kind(), kComboStyle);
    _form.SetCallback(&KivDrwOptViewFrame::Write);
    mode.Spacer("lbl1");
    made.picturesPush = BuildPush(mode, "pushRasterOptions", &KivDrwOptViewFrame::PushRasterOptions);

    made.exactPreview = generation.Row().Check("chkExactPreview", _exactPreview);
    KivFormRow box = generation.Part("frmGenBox").Row();
    const KivDrwLockCheckButton* check = box.At(1).Check("checkGenBox", _genBox);
    made.boxTolerance = box.Spinner("spinGenBox", _genBoxTol, _genBoxTol.Kind());
    made.boxTolerance->SetLongHelp(check->GetLongHelp());
    made.culling = generation.Row().Check("chkOcclusionCulling", _occlusionCulling);
    generation.Row().Check("chkSelBodyInAss", _selBodyInAss, _selBodyInAss.Kind());
}

KivDlgPushButton* KivDrwOptViewFrame::BuildPush(KivFormRow row, const KivString& name, Callback callback)
{
    KivDlgPushButton* button = row.Push(name);
    AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), callback, nullptr);
    return button;
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
    Apply(KivDrwViewOccasion::Shown);
}

// The generative view style governs the options of the page, unless the administrator prevents such styles.
bool KivDrwOptViewFrame::StyleGoverns() const
{
    return KivDrwRead(_repository, KivDrwKeys::DrwPreventGVS) == 0;
}

void KivDrwOptViewFrame::Apply(KivDrwViewOccasion occasion) const
{
    // Without a repository no mode disables anything; an unknown mode has no options, like Vbx.
    const int mode = _mode.cached;
    const bool isKnown = mode >= KivDrwExactMode && mode <= KivDrwHrvMode;
    const unsigned modes = _repository ? 1U << (isKnown ? mode : KivDrwVbxMode) : kEveryMode;
    const bool isStyled = StyleGoverns();
    for (const KivDrwViewRule& rule : _enabling) rule.Apply(occasion, isStyled, modes);
}

void KivDrwOptViewFrame::UpdateVbx()
{
    if (_repository) Apply(KivDrwViewOccasion::ModeChosen);
}

void KivDrwOptViewFrame::Write(KivCommand* from, KivNotification*, void*)
{
    if (!_repository) return;
    const KivWeakPtr<KivDrwOptViewFrame> self(this);
    _form.ReadAll();
    KivProperties stored = {&_occlusionCulling, &_exactPreview, &_genBox,
                            &_genBoxTol,        &_qmtAnnotLay,  &_geomOf2DLView};
    const auto store = [&stored](const KivProperties& more) {
        stored.insert(stored.end(), more.begin(), more.end());
    };
    // These two are stored only when their own button was pressed, deliberately.
    for (KivProperty* property : {&_dimClipNoShow, &_selBodyInAss}) {
        if (_form.IsSender(*property, from)) store({property});
    }
    // What the style or the mode governs is never written from here.
    if (!StyleGoverns()) {
        store({&_genHiddenLines, &_genApplyUncut, &_gen3DColors});
        if (_mode.cached == KivDrwExactMode)
            store({&_genAxis, &_genCenter, &_genThread, &_genFil, &_genWireFrame, &_project3DPts});
    }
    _form.Store(stored);
    if (self) Apply(KivDrwViewOccasion::Stored);
}

void KivDrwOptViewFrame::GenFromVbxCallback(KivCommand* from, KivNotification*, void*)
{
    const KivWeakPtr<KivDrwOptViewFrame> self(this);
    _form.Take(from);
    if (!self) return;
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

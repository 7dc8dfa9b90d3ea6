#pragma once

#include "Form/KivDrwKeyPageFrame.h"
#include "Pages/KivDrwOptViewRules.h"

// The View page: what views that are generated from 3D contain and how they are generated. Which options
// count depends on the generation mode and on the administrator's switch that prevents generative view
// styles; further options are in windows of its own.
class KivDrwOptViewFrame final : public KivClass<KivDrwOptViewFrame, KivDrwKeyPageFrame> {
public:
    static constexpr const char* Name = "KivDrwOptViewFrame";
    KivDrwOptViewFrame(KivDialog* parent, const KivString& name) : KivClass(parent, name, Name) {}

    void Build() override;
    // Also the windows of the page that are open take the values in force.
    void Initialize() override;
    void UpdateWidgets() override;
    // Enables each option as the mode and the administrator's switch have it.
    void UpdateVbx();

    // The callback of the check buttons and the spinner: stores what the page governs at the moment.
    void Write(KivCommand* from, KivNotification* notification, void* data);
    // The callback of the generation mode.
    void GenFromVbxCallback(KivCommand* from, KivNotification* notification, void* data);
    // The callbacks of the push buttons: each opens a window.
    void PushGenFil(KivCommand* from, KivNotification* notification, void* data);
    void Project3DPtsButton(KivCommand* from, KivNotification* notification, void* data);
    void WireFrameModButton(KivCommand* from, KivNotification* notification, void* data);
    void LinetypeButton(KivCommand* from, KivNotification* notification, void* data);
    void PushRasterOptions(KivCommand* from, KivNotification* notification, void* data);

private:
    using Callback = void (KivDrwOptViewFrame::*)(KivCommand*, KivNotification*, void*);
    struct Controls;
    void BuildElements(Controls& made);
    void BuildGeneration(Controls& made);
    KivDlgPushButton* BuildPush(KivFormRow row, const KivString& name, Callback callback);
    bool StyleGoverns() const;
    void Apply(KivDrwViewOccasion occasion) const;
    template <class Window> void OpenWindow(const char* name, const char* catalogue, const char* title);

    KIV_KEY_PROPERTY(_genAxis, int, KivDrwKeys::GenAxisCreate)
    KIV_KEY_PROPERTY(_genCenter, int, KivDrwKeys::GenCenterCreate)
    KIV_KEY_PROPERTY(_genThread, int, KivDrwKeys::GenThreadCreate)
    KIV_KEY_PROPERTY(_genFil, int, KivDrwKeys::GenFilCreate)
    KIV_KEY_PROPERTY(_genHiddenLines, int, KivDrwKeys::GenHiddenLines)
    KIV_KEY_PROPERTY(_gen3DColors, int, KivDrwKeys::Gen3DColors)
    KIV_KEY_PROPERTY(_genWireFrame, int, KivDrwKeys::GenWireFrame)
    KIV_KEY_PROPERTY(_genApplyUncut, int, KivDrwKeys::GenApplyUncut)
    KIV_KEY_PROPERTY(_mode, int, KivDrwKeys::DrwGenerationModeVal)
    KIV_KEY_PROPERTY(_genBox, int, KivDrwKeys::DrwGenerationForBox)
    KIV_KEY_PROPERTY(_genBoxTol, double, KivDrwKeys::DrwGenerationForBoxTol)
    KIV_KEY_PROPERTY(_exactPreview, int, KivDrwKeys::DrwExactPreview)
    KIV_KEY_PROPERTY(_occlusionCulling, int, KivDrwKeys::DrwOcclusionCulling)
    KIV_KEY_PROPERTY(_project3DPts, int, KivDrwKeys::DrwProject3DPts)
    KIV_KEY_PROPERTY(_qmtAnnotLay, int, KivDrwKeys::KivDrwQmtAnnotLay)
    KIV_KEY_PROPERTY(_dimClipNoShow, int, KivDrwKeys::KivDrwDimClipNoShow)
    KIV_KEY_PROPERTY(_selBodyInAss, int, KivDrwKeys::KivDrwSelBodyInAss)
    KIV_KEY_PROPERTY(_geomOf2DLView, int, KivDrwKeys::KivDrwGeomOf2DLView)

    std::vector<KivDrwViewRule> _enabling; // what the mode, the style and other options enable
};

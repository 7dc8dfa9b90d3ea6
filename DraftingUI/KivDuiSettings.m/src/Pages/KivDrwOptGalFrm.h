#pragma once

#include "Form/KivDrwPageAccessors.h"
#include "KivDrwSettingAccess.h"
#include "Pages/Kiv2DBaseOptGalFrm.h"

// The General page of the drafting workbench, bound to its settings.
class KivDrwOptGalFrm final : public KivClass<KivDrwOptGalFrm, Kiv2DBaseOptGalFrm> {
    using Base = Kiv2DBaseOptGalFrm;

public:
    static constexpr const char* Name = "KivDrwOptGalFrm";
    KivDrwOptGalFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name) {}

    KIV_BIND_SETTING(KivDrwKeys::Ruler, SetShowRuler, GetShowRuler, GetShowRulerInfo)
    KIV_BIND_SETTING(KivDrwKeys::Drw_settings_GridDisplay, SetDisplayGrid, GetDisplayGrid, GetDisplayGridInfo)
    KIV_BIND_SETTING(KivDrwKeys::Drw_settings_GridSnapPt, SetSnapToPoint, GetSnapToPoint, GetSnapToPointInfo)
    KIV_BIND_SETTING(KivDrwKeys::Drw_settings_AllowDistortions, SetAllowDistortions, GetAllowDistortions,
                     GetAllowDistortionsInfo)
    KIV_BIND_SETTING(KivDrwKeys::Drw_settings_GridPrimarySpacing, SetPrimSpaceH, GetPrimSpaceH,
                     GetPrimSpaceHInfo)
    KIV_BIND_SETTING(KivDrwKeys::Drw_settings_GridVPrimarySpacing, SetPrimSpaceV, GetPrimSpaceV,
                     GetPrimSpaceVInfo)
    KIV_BIND_SETTING(KivDrwKeys::Drw_settings_GridSecondaryStep, SetGradH, GetGradH, GetGradHInfo)
    KIV_BIND_SETTING(KivDrwKeys::Drw_settings_GridVSecondaryStep, SetGradV, GetGradV, GetGradVInfo)
    KIV_BIND_COLOR(kKivDrwSheetColor, SetSheetColor, GetSheetColor, GetSheetColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::GraduatedColor, SetSheetColorGrad, GetSheetColorGrad, GetSheetColorGradInfo)
    KIV_BIND_COLOR(kKivDrwDetailColor, SetDetailColor, GetDetailColor, GetDetailColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::GraduatedColorDitto, SetDetailColorGrad, GetDetailColorGrad,
                     GetDetailColorGradInfo)
    KIV_BIND_SETTING(KivDrwKeys::TreeParameters, SetDisplayParam, GetDisplayParam, GetDisplayParamInfo)
    KIV_BIND_SETTING(KivDrwKeys::TreeFormulas, SetDisplayRelation, GetDisplayRelation, GetDisplayRelationInfo)
    KIV_BIND_SETTING(KivDrwKeys::ViewReferential, Set2DAxisDisplay, Get2DAxisDisplay, Get2DAxisDisplayInfo)
    KIV_BIND_SETTING(KivDrwKeys::ViewRefZoom, Set2DAxisZoom, Get2DAxisZoom, Get2DAxisZoomInfo)
    KIV_BIND_SETTING(KivDrwKeys::ViewAxisSize, Set2DAxisLength, Get2DAxisLength, Get2DAxisLengthInfo)
    KIV_BIND_SETTING(KivDrwKeys::HideWhenStartWkb, SetHideWhenStartWkb, GetHideWhenStartWkb,
                     GetHideWhenStartWkbInfo)
    KIV_BIND_SETTING(KivDrwKeys::RotSnapAngle, SetRotationSnapAngle, GetRotationSnapAngle,
                     GetRotationSnapAngleInfo)
    KIV_BIND_SETTING(KivDrwKeys::RotSnapAuto, SetRotationAutoSnap, GetRotationAutoSnap,
                     GetRotationAutoSnapInfo)

    int WithFrameRuler() override { return 1; }
    int WithFrameGrid() override { return 1; }
    int WithFrameRotation() override { return 1; }
    int WithFrameColor() override { return 1; }
    int WithFrameTree() override { return 1; }
    int WithFrame2DAxis() override { return 1; }
    int WithFrameHideWhenStartWkb() override { return 1; }

private:
    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the page then shows defaults
};

#pragma once

#include "Form/KivDrwSketcherAccessors.h"
#include "KivDrwSettingAccess.h"
#include "Pages/Kiv2DBaseOptGeoFrm.h"

// The color of the symbols of constraints.
inline constexpr KivDrwNotifyingColor<KivDrwComponentColor> kKivDrwConstraintColor{
    {KivDrwKeys::CstColorR, KivDrwKeys::CstColorG, KivDrwKeys::CstColorB},
    &Kiv2DBaseSketcherSettingsAdapt::Visu3DUIModify};

// The Geometry page of the drafting workbench, bound to its settings. The sketcher is told of each change.
class KivDrwOptGeoFrm final : public KivClass<KivDrwOptGeoFrm, Kiv2DBaseOptGeoFrm> {
    using Base = Kiv2DBaseOptGeoFrm;

public:
    static constexpr const char* Name = "KivDrwOptGeoFrm";
    KivDrwOptGeoFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name) {}

    KIV_BIND_NOTIFYING(GeomUIModify, KivDrwKeys::Drw_settings_CreateCenter, SetCreateGeomCenter,
                       GetCreateGeomCenter, GetCreateGeomCenterInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwEndPtsDuplGenGeom, SetEndPtsDupliGenGeom, GetEndPtsDupliGenGeom,
                     GetEndPtsDupliGenGeomInfo)
    KIV_BIND_NOTIFYING(CpltModify, KivDrwKeys::Drw_settings_ShowPosition, SetShowHV, GetShowHV, GetShowHVInfo)
    KIV_BIND_NOTIFYING(GeomUIModify, KivDrwKeys::Drw_settings_DragElts, SetAllowGeomManip, GetAllowGeomManip,
                       GetAllowGeomManipInfo)
    KIV_BIND_NOTIFYING(GeomUIModify, KivDrwKeys::Drw_settings_DragWithEndPts, SetDragWithEndPts,
                       GetDragWithEndPts, GetDragWithEndPtsInfo)
    KIV_BIND_NOTIFYING(GeomUIModify, KivDrwKeys::Drw_settings_DragModeR14, SetDragSolveMode, GetDragSolveMode,
                       GetDragSolveModeInfo)
    KIV_BIND_NOTIFYING(CpltModify, KivDrwKeys::Drw_settings_CpltPosSupport, SetSmartPickCoincid,
                       GetSmartPickCoincid, GetSmartPickCoincidInfo)
    KIV_BIND_NOTIFYING(CpltModify, KivDrwKeys::Drw_settings_CpltPosHorVertTo, SetSmartPickAlign,
                       GetSmartPickAlign, GetSmartPickAlignInfo)
    KIV_BIND_NOTIFYING(CpltModify, KivDrwKeys::Drw_settings_CpltDirParPerpTan, SetSmartPickParaPerpenTang,
                       GetSmartPickParaPerpenTang, GetSmartPickParaPerpenTangInfo)
    KIV_BIND_NOTIFYING(CpltModify, KivDrwKeys::Drw_settings_CpltDirHorVert, SetSmartPickHoriVerti,
                       GetSmartPickHoriVerti, GetSmartPickHoriVertiInfo)
    KIV_BIND_COLOR(KivDrwGeometryColor(KivDrwKeys::Drw_settings_ColorSmartPick), SetSmartPickColor,
                   GetSmartPickColor, GetSmartPickColorInfo)
    KIV_BIND_NOTIFYING(CpltModify, KivDrwKeys::CstCreation, SetCstCreation, GetCstCreation,
                       GetCstCreationInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisu, SetCstVisu, GetCstVisu, GetCstVisuInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstRefSize, SetCstRefSize, GetCstRefSize,
                       GetCstRefSizeInfo)
    KIV_BIND_COLOR(kKivDrwConstraintColor, SetCstColor, GetCstColor, GetCstColorInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisuHori, SetCstVisuHori, GetCstVisuHori,
                       GetCstVisuHoriInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisuVerti, SetCstVisuVerti, GetCstVisuVerti,
                       GetCstVisuVertiInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisuPara, SetCstVisuPara, GetCstVisuPara,
                       GetCstVisuParaInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisuPerpen, SetCstVisuPerpen, GetCstVisuPerpen,
                       GetCstVisuPerpenInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisuConcen, SetCstVisuConcen, GetCstVisuConcen,
                       GetCstVisuConcenInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisuCoinci, SetCstVisuCoinci, GetCstVisuCoinci,
                       GetCstVisuCoinciInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisuTangen, SetCstVisuTangen, GetCstVisuTangen,
                       GetCstVisuTangenInfo)
    KIV_BIND_NOTIFYING(Visu3DUIModify, KivDrwKeys::CstVisuSym, SetCstVisuSym, GetCstVisuSym,
                       GetCstVisuSymInfo)
    KIV_BIND_NOTIFYING(GeomUIModify, KivDrwKeys::Drw_settings_DiagElts, SetVisuDiagnostic, GetVisuDiagnostic,
                       GetVisuDiagnosticInfo)
    KIV_BIND_COLOR(KivDrwGeometryColor(KivDrwKeys::Drw_settings_ColorDiagOverDefinedElts),
                   SetOverConsEltsColor, GetOverConsEltsColor, GetOverConsEltsColorInfo)
    KIV_BIND_COLOR(KivDrwGeometryColor(KivDrwKeys::Drw_settings_ColorDiagNotConsistentElts),
                   SetInconsEltsColor, GetInconsEltsColor, GetInconsEltsColorInfo)
    KIV_BIND_COLOR(KivDrwGeometryColor(KivDrwKeys::Drw_settings_ColorDiagNotChangedElts), SetNotChanEltsColor,
                   GetNotChanEltsColor, GetNotChanEltsColorInfo)
    KIV_BIND_COLOR(KivDrwGeometryColor(KivDrwKeys::Drw_settings_ColorDiagWellDefinedElts),
                   SetIsoConsEltsColor, GetIsoConsEltsColor, GetIsoConsEltsColorInfo)
    KIV_BIND_COLOR(KivDrwGeometryColor(KivDrwKeys::Drw_settings_ColorConstructElts), SetConstEltsColor,
                   GetConstEltsColor, GetConstEltsColorInfo)

    int WithFrameGeomCreation() override { return 1; }
    int WithFrameGeomDrag() override { return 1; }
    int WithFrameSmartPick() override { return 1; }
    int WithFrameConstraint() override { return 1; }
    int WithFrameGeomColor() override { return 1; }

private:
    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the page then shows defaults
};

#pragma once

#include "Form/KivPageFrame.h"
#include "Form/KivPageSetting.h"

// The Geometry page: how geometry is created and dragged, what smart picking finds, constraints, and the
// colors of diagnostics. Knows no store: a frame derived from it binds the accessors and switches on the
// groups that its application has.
class Kiv2DBaseOptGeoFrm : public KivClass<Kiv2DBaseOptGeoFrm, KivPageFrame> {
    using Self = Kiv2DBaseOptGeoFrm;

public:
    static constexpr const char* Name = "Kiv2DBaseOptGeoFrm";
    Kiv2DBaseOptGeoFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name, Name) {}

    void Build() override;

    KIV_PAGE_SETTING(unsigned char, _createGeomCenter, SetCreateGeomCenter, GetCreateGeomCenter,
                     GetCreateGeomCenterInfo)
    KIV_PAGE_SETTING(unsigned char, _endPtsDupliGenGeom, SetEndPtsDupliGenGeom, GetEndPtsDupliGenGeom,
                     GetEndPtsDupliGenGeomInfo)
    KIV_PAGE_SETTING(unsigned char, _showHV, SetShowHV, GetShowHV, GetShowHVInfo)
    KIV_PAGE_SETTING(unsigned char, _allowGeomManip, SetAllowGeomManip, GetAllowGeomManip,
                     GetAllowGeomManipInfo)
    KIV_PAGE_SETTING(unsigned char, _dragWithEndPts, SetDragWithEndPts, GetDragWithEndPts,
                     GetDragWithEndPtsInfo)
    KIV_PAGE_SETTING(int, _dragSolveMode, SetDragSolveMode, GetDragSolveMode, GetDragSolveModeInfo)
    KIV_PAGE_SETTING(unsigned char, _smartPickCoincid, SetSmartPickCoincid, GetSmartPickCoincid,
                     GetSmartPickCoincidInfo)
    KIV_PAGE_SETTING(unsigned char, _smartPickAlign, SetSmartPickAlign, GetSmartPickAlign,
                     GetSmartPickAlignInfo)
    KIV_PAGE_SETTING(unsigned char, _smartPickParaPerpenTang, SetSmartPickParaPerpenTang,
                     GetSmartPickParaPerpenTang, GetSmartPickParaPerpenTangInfo)
    KIV_PAGE_SETTING(unsigned char, _smartPickHoriVerti, SetSmartPickHoriVerti, GetSmartPickHoriVerti,
                     GetSmartPickHoriVertiInfo)
    KIV_PAGE_COLOR(_smartPickColor, SetSmartPickColor, GetSmartPickColor, GetSmartPickColorInfo)
    KIV_PAGE_SETTING(unsigned char, _cstCreation, SetCstCreation, GetCstCreation, GetCstCreationInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisu, SetCstVisu, GetCstVisu, GetCstVisuInfo)
    KIV_PAGE_SETTING(double, _cstRefSize, SetCstRefSize, GetCstRefSize, GetCstRefSizeInfo)
    KIV_PAGE_COLOR(_cstColor, SetCstColor, GetCstColor, GetCstColorInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisuHori, SetCstVisuHori, GetCstVisuHori, GetCstVisuHoriInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisuVerti, SetCstVisuVerti, GetCstVisuVerti, GetCstVisuVertiInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisuPara, SetCstVisuPara, GetCstVisuPara, GetCstVisuParaInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisuPerpen, SetCstVisuPerpen, GetCstVisuPerpen, GetCstVisuPerpenInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisuConcen, SetCstVisuConcen, GetCstVisuConcen, GetCstVisuConcenInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisuCoinci, SetCstVisuCoinci, GetCstVisuCoinci, GetCstVisuCoinciInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisuTangen, SetCstVisuTangen, GetCstVisuTangen, GetCstVisuTangenInfo)
    KIV_PAGE_SETTING(unsigned char, _cstVisuSym, SetCstVisuSym, GetCstVisuSym, GetCstVisuSymInfo)
    KIV_PAGE_SETTING(unsigned char, _visuDiagnostic, SetVisuDiagnostic, GetVisuDiagnostic,
                     GetVisuDiagnosticInfo)
    KIV_PAGE_COLOR(_overConsEltsColor, SetOverConsEltsColor, GetOverConsEltsColor, GetOverConsEltsColorInfo)
    KIV_PAGE_COLOR(_inconsEltsColor, SetInconsEltsColor, GetInconsEltsColor, GetInconsEltsColorInfo)
    KIV_PAGE_COLOR(_notChanEltsColor, SetNotChanEltsColor, GetNotChanEltsColor, GetNotChanEltsColorInfo)
    KIV_PAGE_COLOR(_isoConsEltsColor, SetIsoConsEltsColor, GetIsoConsEltsColor, GetIsoConsEltsColorInfo)
    KIV_PAGE_COLOR(_constEltsColor, SetConstEltsColor, GetConstEltsColor, GetConstEltsColorInfo)

public:
    // 1 for each group that the application has.
    virtual int WithFrameGeomCreation() { return 0; }
    virtual int WithFrameGeomDrag() { return 0; }
    virtual int WithFrameSmartPick() { return 0; }
    virtual int WithFrameConstraint() { return 0; }
    virtual int WithFrameGeomColor() { return 0; }

private:
    void BuildDrag();
    void BuildSmartPick();
    void BuildConstraint();
    void BuildColor();

    bool FindsAnything() const;
};

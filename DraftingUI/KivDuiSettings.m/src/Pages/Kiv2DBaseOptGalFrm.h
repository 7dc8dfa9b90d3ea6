#pragma once

#include "Form/KivPageFrame.h"
#include "Form/KivPageSetting.h"

// The General page: ruler, grid, rotation, colors, tree, 2D axis. Knows no store: a frame derived from it
// binds the accessors and switches on the groups that its application has.
class Kiv2DBaseOptGalFrm : public KivClass<Kiv2DBaseOptGalFrm, KivPageFrame> {
    using Self = Kiv2DBaseOptGalFrm;

public:
    static constexpr const char* Name = "Kiv2DBaseOptGalFrm";
    Kiv2DBaseOptGalFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name, Name) {}

    void Build() override;

    KIV_PAGE_SETTING(unsigned char, _showRuler, SetShowRuler, GetShowRuler, GetShowRulerInfo)
    KIV_PAGE_SETTING(unsigned char, _displayGrid, SetDisplayGrid, GetDisplayGrid, GetDisplayGridInfo)
    KIV_PAGE_SETTING(unsigned char, _snapToPoint, SetSnapToPoint, GetSnapToPoint, GetSnapToPointInfo)
    KIV_PAGE_SETTING(unsigned char, _allowDistortions, SetAllowDistortions, GetAllowDistortions,
                     GetAllowDistortionsInfo)
    KIV_PAGE_SETTING(double, _primSpaceH, SetPrimSpaceH, GetPrimSpaceH, GetPrimSpaceHInfo)
    KIV_PAGE_SETTING(double, _primSpaceV, SetPrimSpaceV, GetPrimSpaceV, GetPrimSpaceVInfo)
    KIV_PAGE_SETTING(int, _gradH, SetGradH, GetGradH, GetGradHInfo)
    KIV_PAGE_SETTING(int, _gradV, SetGradV, GetGradV, GetGradVInfo)
    KIV_PAGE_COLOR(_sheetColor, SetSheetColor, GetSheetColor, GetSheetColorInfo)
    KIV_PAGE_SETTING(unsigned char, _sheetColorGrad, SetSheetColorGrad, GetSheetColorGrad,
                     GetSheetColorGradInfo)
    KIV_PAGE_COLOR(_detailColor, SetDetailColor, GetDetailColor, GetDetailColorInfo)
    KIV_PAGE_SETTING(unsigned char, _detailColorGrad, SetDetailColorGrad, GetDetailColorGrad,
                     GetDetailColorGradInfo)
    KIV_PAGE_SETTING(unsigned char, _displayParam, SetDisplayParam, GetDisplayParam, GetDisplayParamInfo)
    KIV_PAGE_SETTING(unsigned char, _displayRelation, SetDisplayRelation, GetDisplayRelation,
                     GetDisplayRelationInfo)
    KIV_PAGE_SETTING(unsigned char, _2DAxisDisplay, Set2DAxisDisplay, Get2DAxisDisplay, Get2DAxisDisplayInfo)
    KIV_PAGE_SETTING(unsigned char, _2DAxisZoom, Set2DAxisZoom, Get2DAxisZoom, Get2DAxisZoomInfo)
    KIV_PAGE_SETTING(double, _2DAxisLength, Set2DAxisLength, Get2DAxisLength, Get2DAxisLengthInfo)
    KIV_PAGE_SETTING(unsigned char, _hideWhenStartWkb, SetHideWhenStartWkb, GetHideWhenStartWkb,
                     GetHideWhenStartWkbInfo)
    KIV_PAGE_SETTING(double, _rotationSnapAngle, SetRotationSnapAngle, GetRotationSnapAngle,
                     GetRotationSnapAngleInfo)
    KIV_PAGE_SETTING(unsigned char, _rotationAutoSnap, SetRotationAutoSnap, GetRotationAutoSnap,
                     GetRotationAutoSnapInfo)

public:
    // 1 for each group that the application has.
    virtual int WithFrameRuler() { return 0; }
    virtual int WithFrameGrid() { return 0; }
    virtual int WithFrameRotation() { return 0; }
    virtual int WithFrameColor() { return 0; }
    virtual int WithFrameTree() { return 0; }
    virtual int WithFrame2DAxis() { return 0; }
    virtual int WithFrameHideWhenStartWkb() { return 0; }

private:
    void BuildGrid();
    void BuildRotation();
    void BuildColor();
    void Build2DAxis();

    void MirrorSpacing();
    void MirrorGraduation();

    KivWeakPtr<KivDrwLockSpinner> _spacingV;
    KivWeakPtr<KivDrwLockSpinner> _graduationV;
};

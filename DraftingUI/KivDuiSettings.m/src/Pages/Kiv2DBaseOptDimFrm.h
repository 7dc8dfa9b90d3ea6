#pragma once

#include "Form/KivPageFrame.h"
#include "Form/KivPageSetting.h"

// The Dimension page: how dimensions are created, placed, lined up and moved, and the colors that tell in
// which state they are. Knows no store: a frame derived from it binds the accessors and switches on the
// groups that its application has.
class Kiv2DBaseOptDimFrm : public KivClass<Kiv2DBaseOptDimFrm, KivPageFrame> {
    using Self = Kiv2DBaseOptDimFrm;

public:
    static constexpr const char* Name = "Kiv2DBaseOptDimFrm";
    Kiv2DBaseOptDimFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name, Name) {}

    void Build() override;

    KIV_PAGE_SETTING(unsigned char, _dimSketch, SetDimSketch, GetDimSketch, GetDimSketchInfo)
    KIV_PAGE_SETTING(unsigned char, _dimDrivingAuto, SetDimDrivingAuto, GetDimDrivingAuto,
                     GetDimDrivingAutoInfo)
    KIV_PAGE_SETTING(unsigned char, _dimForce2D, SetDimForce2D, GetDimForce2D, GetDimForce2DInfo)
    KIV_PAGE_SETTING(unsigned char, _dimCircle, SetDimCircle, GetDimCircle, GetDimCircleInfo)
    KIV_PAGE_SETTING(unsigned char, _dimDetectChamfer, SetDimDetectChamfer, GetDimDetectChamfer,
                     GetDimDetectChamferInfo)
    KIV_PAGE_SETTING(unsigned char, _assocDimOnApproximate, SetAssocDimOnApproximate,
                     GetAssocDimOnApproximate, GetAssocDimOnApproximateInfo)
    KIV_PAGE_SETTING(double, _dimLinePosValue, SetDimLinePosValue, GetDimLinePosValue, GetDimLinePosValueInfo)
    KIV_PAGE_SETTING(unsigned char, _dimLinePosRelative, SetDimLinePosRelative, GetDimLinePosRelative,
                     GetDimLinePosRelativeInfo)
    KIV_PAGE_SETTING(unsigned char, _dimLineUpEnds, SetDimLineUpEnds, GetDimLineUpEnds, GetDimLineUpEndsInfo)
    KIV_PAGE_SETTING(double, _lineUpBaseOffsetLength, SetLineUpBaseOffsetLength, GetLineUpBaseOffsetLength,
                     GetLineUpBaseOffsetLengthInfo)
    KIV_PAGE_SETTING(double, _lineUpBaseOffsetAngle, SetLineUpBaseOffsetAngle, GetLineUpBaseOffsetAngle,
                     GetLineUpBaseOffsetAngleInfo)
    KIV_PAGE_SETTING(double, _lineUpOffsetLength, SetLineUpOffsetLength, GetLineUpOffsetLength,
                     GetLineUpOffsetLengthInfo)
    KIV_PAGE_SETTING(double, _lineUpOffsetAngle, SetLineUpOffsetAngle, GetLineUpOffsetAngle,
                     GetLineUpOffsetAngleInfo)
    KIV_PAGE_SETTING(unsigned char, _lineUpStackVal, SetLineUpStackVal, GetLineUpStackVal,
                     GetLineUpStackValInfo)
    KIV_PAGE_SETTING(unsigned char, _lineUpCumulVal, SetLineUpCumulVal, GetLineUpCumulVal,
                     GetLineUpCumulValInfo)
    KIV_PAGE_SETTING(unsigned char, _lineUpAutoFunnel, SetLineUpAutoFunnel, GetLineUpAutoFunnel,
                     GetLineUpAutoFunnelInfo)
    KIV_PAGE_SETTING(unsigned char, _dimDesignMode, SetDimDesignMode, GetDimDesignMode, GetDimDesignModeInfo)
    KIV_PAGE_SETTING(unsigned char, _dimNotUpToDate, SetDimNotUpToDate, GetDimNotUpToDate,
                     GetDimNotUpToDateInfo)
    KIV_PAGE_COLOR(_dimNotUpToDateColor, SetDimNotUpToDateColor, GetDimNotUpToDateColor,
                   GetDimNotUpToDateColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dimNonAssociative, SetDimNonAssociative, GetDimNonAssociative,
                     GetDimNonAssociativeInfo)
    KIV_PAGE_COLOR(_dimNonAssociativeColor, SetDimNonAssociativeColor, GetDimNonAssociativeColor,
                   GetDimNonAssociativeColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dimBroken, SetDimBroken, GetDimBroken, GetDimBrokenInfo)
    KIV_PAGE_COLOR(_dimBrokenColor, SetDimBrokenColor, GetDimBrokenColor, GetDimBrokenColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dimFake, SetDimFake, GetDimFake, GetDimFakeInfo)
    KIV_PAGE_COLOR(_dimFakeColor, SetDimFakeColor, GetDimFakeColor, GetDimFakeColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dimDriving, SetDimDriving, GetDimDriving, GetDimDrivingInfo)
    KIV_PAGE_COLOR(_dimDrivingColor, SetDimDrivingColor, GetDimDrivingColor, GetDimDrivingColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dimTrue, SetDimTrue, GetDimTrue, GetDimTrueInfo)
    KIV_PAGE_COLOR(_dimTrueColor, SetDimTrueColor, GetDimTrueColor, GetDimTrueColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dim3DCst, SetDim3DCst, GetDim3DCst, GetDim3DCstInfo)
    KIV_PAGE_COLOR(_dim3DCstColor, SetDim3DCstColor, GetDim3DCstColor, GetDim3DCstColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dimNotUpToDate3DCst, SetDimNotUpToDate3DCst, GetDimNotUpToDate3DCst,
                     GetDimNotUpToDate3DCstInfo)
    KIV_PAGE_COLOR(_dimNotUpToDate3DCstColor, SetDimNotUpToDate3DCstColor, GetDimNotUpToDate3DCstColor,
                   GetDimNotUpToDate3DCstColorInfo)
    KIV_PAGE_SETTING(unsigned char, _isolatedDimension, SetIsolatedDimension, GetIsolatedDimension,
                     GetIsolatedDimensionInfo)
    KIV_PAGE_COLOR(_isolatedDimensionColor, SetIsolatedDimensionColor, GetIsolatedDimensionColor,
                   GetIsolatedDimensionColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dimOnNonVisGeom, SetDimOnNonVisGeom, GetDimOnNonVisGeom,
                     GetDimOnNonVisGeomInfo)
    KIV_PAGE_COLOR(_dimOnNonVisGeomColor, SetDimOnNonVisGeomColor, GetDimOnNonVisGeomColor,
                   GetDimOnNonVisGeomColorInfo)
    KIV_PAGE_SETTING(unsigned char, _dimSnap, SetDimSnap, GetDimSnap, GetDimSnapInfo)
    KIV_PAGE_SETTING(unsigned char, _dimSnapOnGrid, SetDimSnapOnGrid, GetDimSnapOnGrid, GetDimSnapOnGridInfo)
    KIV_PAGE_SETTING(unsigned char, _dimSnapValue, SetDimSnapValue, GetDimSnapValue, GetDimSnapValueInfo)
    KIV_PAGE_SETTING(unsigned char, _dimMoveSubPart, SetDimMoveSubPart, GetDimMoveSubPart,
                     GetDimMoveSubPartInfo)

public:
    // 1 for each group that the application has.
    virtual int WithFrameDimCreation() { return 0; }
    virtual int WithFrameDimLinePos() { return 0; }
    virtual int WithFrameDimLineUp() { return 0; }
    virtual int WithFrameDimAnalysis() { return 0; }
    virtual int WithFrameDimMove() { return 0; }

private:
    struct AnalyzedState;

    void BuildCreation();
    void BuildLinePos();
    void BuildLineUp();
    void BuildAnalysis();
    void BuildMove();
};

#pragma once

#include "Form/KivDrwPageAccessors.h"
#include "KivDrwSettingAccess.h"
#include "Pages/Kiv2DBaseOptDimFrm.h"
#include "Settings/KivDrwStoredColor.h"

// The colors of the states of dimensions.
inline constexpr KivDrwComponentColor kKivDrwDimNotUpToDateColor{
    KivDrwKeys::DimNotUpToDateR, KivDrwKeys::DimNotUpToDateG, KivDrwKeys::DimNotUpToDateB};
inline constexpr KivDrwComponentColor kKivDrwDimNonAssociativeColor{
    KivDrwKeys::DimNonAssociativeR, KivDrwKeys::DimNonAssociativeG, KivDrwKeys::DimNonAssociativeB};
inline constexpr KivDrwComponentColor kKivDrwDimBrokenColor{KivDrwKeys::DimBrokenR, KivDrwKeys::DimBrokenG,
                                                            KivDrwKeys::DimBrokenB};
inline constexpr KivDrwComponentColor kKivDrwDimFakeColor{KivDrwKeys::DimFakeR, KivDrwKeys::DimFakeG,
                                                          KivDrwKeys::DimFakeB};
inline constexpr KivDrwComponentColor kKivDrwDimDrivingColor{KivDrwKeys::DimDrivingR, KivDrwKeys::DimDrivingG,
                                                             KivDrwKeys::DimDrivingB};
inline constexpr KivDrwComponentColor kKivDrwDimTrueColor{KivDrwKeys::DimTrueR, KivDrwKeys::DimTrueG,
                                                          KivDrwKeys::DimTrueB};
inline constexpr KivDrwComponentColor kKivDrwDim3DCstColor{KivDrwKeys::Dim3DCstR, KivDrwKeys::Dim3DCstG,
                                                           KivDrwKeys::Dim3DCstB};
inline constexpr KivDrwComponentColor kKivDrwDimNotUpToDate3DCstColor{
    KivDrwKeys::DimNotUpToDate3DCstR, KivDrwKeys::DimNotUpToDate3DCstG, KivDrwKeys::DimNotUpToDate3DCstB};
inline constexpr KivDrwComponentColor kKivDrwIsolatedDimColor{
    KivDrwKeys::KivDrwIsolatedDimR, KivDrwKeys::KivDrwIsolatedDimG, KivDrwKeys::KivDrwIsolatedDimB};
inline constexpr KivDrwComponentColor kKivDrwDimOnNonVisGeomColor{
    KivDrwKeys::DrwDimOnNonVisGeomR, KivDrwKeys::DrwDimOnNonVisGeomG, KivDrwKeys::DrwDimOnNonVisGeomB};

// The Dimension page of the drafting workbench, bound to its settings.
class KivDrwOptIntFrm final : public KivClass<KivDrwOptIntFrm, Kiv2DBaseOptDimFrm> {
    using Base = Kiv2DBaseOptDimFrm;

public:
    static constexpr const char* Name = "KivDrwOptIntFrm";
    KivDrwOptIntFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name) {}

    KIV_BIND_SETTING(KivDrwKeys::DimSketch, SetDimSketch, GetDimSketch, GetDimSketchInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimDrivingAuto, SetDimDrivingAuto, GetDimDrivingAuto, GetDimDrivingAutoInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimForce2D, SetDimForce2D, GetDimForce2D, GetDimForce2DInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimCircle, SetDimCircle, GetDimCircle, GetDimCircleInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimDetectChamfer, SetDimDetectChamfer, GetDimDetectChamfer,
                     GetDimDetectChamferInfo)
    KIV_BIND_SETTING(KivDrwKeys::KivDrwAssocDimOnApproximate, SetAssocDimOnApproximate,
                     GetAssocDimOnApproximate, GetAssocDimOnApproximateInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimLinePosValue, SetDimLinePosValue, GetDimLinePosValue,
                     GetDimLinePosValueInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimLinePosRelative, SetDimLinePosRelative, GetDimLinePosRelative,
                     GetDimLinePosRelativeInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimLineUpEnds, SetDimLineUpEnds, GetDimLineUpEnds, GetDimLineUpEndsInfo)
    KIV_BIND_SETTING(KivDrwKeys::LineUpBaseOffsetLength, SetLineUpBaseOffsetLength, GetLineUpBaseOffsetLength,
                     GetLineUpBaseOffsetLengthInfo)
    KIV_BIND_SETTING(KivDrwKeys::LineUpBaseOffsetAngle, SetLineUpBaseOffsetAngle, GetLineUpBaseOffsetAngle,
                     GetLineUpBaseOffsetAngleInfo)
    KIV_BIND_SETTING(KivDrwKeys::LineUpOffsetLength, SetLineUpOffsetLength, GetLineUpOffsetLength,
                     GetLineUpOffsetLengthInfo)
    KIV_BIND_SETTING(KivDrwKeys::LineUpOffsetAngle, SetLineUpOffsetAngle, GetLineUpOffsetAngle,
                     GetLineUpOffsetAngleInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwLineUpStackVal, SetLineUpStackVal, GetLineUpStackVal,
                     GetLineUpStackValInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwLineUpCumulVal, SetLineUpCumulVal, GetLineUpCumulVal,
                     GetLineUpCumulValInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwLineUpAutoFunnel, SetLineUpAutoFunnel, GetLineUpAutoFunnel,
                     GetLineUpAutoFunnelInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimDesignMode, SetDimDesignMode, GetDimDesignMode, GetDimDesignModeInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimNotUpToDate, SetDimNotUpToDate, GetDimNotUpToDate, GetDimNotUpToDateInfo)
    KIV_BIND_COLOR(kKivDrwDimNotUpToDateColor, SetDimNotUpToDateColor, GetDimNotUpToDateColor,
                   GetDimNotUpToDateColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimNonAssociative, SetDimNonAssociative, GetDimNonAssociative,
                     GetDimNonAssociativeInfo)
    KIV_BIND_COLOR(kKivDrwDimNonAssociativeColor, SetDimNonAssociativeColor, GetDimNonAssociativeColor,
                   GetDimNonAssociativeColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimBroken, SetDimBroken, GetDimBroken, GetDimBrokenInfo)
    KIV_BIND_COLOR(kKivDrwDimBrokenColor, SetDimBrokenColor, GetDimBrokenColor, GetDimBrokenColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimFake, SetDimFake, GetDimFake, GetDimFakeInfo)
    KIV_BIND_COLOR(kKivDrwDimFakeColor, SetDimFakeColor, GetDimFakeColor, GetDimFakeColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimDriving, SetDimDriving, GetDimDriving, GetDimDrivingInfo)
    KIV_BIND_COLOR(kKivDrwDimDrivingColor, SetDimDrivingColor, GetDimDrivingColor, GetDimDrivingColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimTrue, SetDimTrue, GetDimTrue, GetDimTrueInfo)
    KIV_BIND_COLOR(kKivDrwDimTrueColor, SetDimTrueColor, GetDimTrueColor, GetDimTrueColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::Dim3DCst, SetDim3DCst, GetDim3DCst, GetDim3DCstInfo)
    KIV_BIND_COLOR(kKivDrwDim3DCstColor, SetDim3DCstColor, GetDim3DCstColor, GetDim3DCstColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimNotUpToDate3DCst, SetDimNotUpToDate3DCst, GetDimNotUpToDate3DCst,
                     GetDimNotUpToDate3DCstInfo)
    KIV_BIND_COLOR(kKivDrwDimNotUpToDate3DCstColor, SetDimNotUpToDate3DCstColor, GetDimNotUpToDate3DCstColor,
                   GetDimNotUpToDate3DCstColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::KivDrwIsolatedDim, SetIsolatedDimension, GetIsolatedDimension,
                     GetIsolatedDimensionInfo)
    KIV_BIND_COLOR(kKivDrwIsolatedDimColor, SetIsolatedDimensionColor, GetIsolatedDimensionColor,
                   GetIsolatedDimensionColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwDimOnNonVisGeom, SetDimOnNonVisGeom, GetDimOnNonVisGeom,
                     GetDimOnNonVisGeomInfo)
    KIV_BIND_COLOR(kKivDrwDimOnNonVisGeomColor, SetDimOnNonVisGeomColor, GetDimOnNonVisGeomColor,
                   GetDimOnNonVisGeomColorInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimSnap, SetDimSnap, GetDimSnap, GetDimSnapInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimSnapOnGrid, SetDimSnapOnGrid, GetDimSnapOnGrid, GetDimSnapOnGridInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimSnapValue, SetDimSnapValue, GetDimSnapValue, GetDimSnapValueInfo)
    KIV_BIND_SETTING(KivDrwKeys::DimMoveSubPart, SetDimMoveSubPart, GetDimMoveSubPart, GetDimMoveSubPartInfo)

    int WithFrameDimCreation() override { return 1; }
    int WithFrameDimLinePos() override { return 1; }
    int WithFrameDimLineUp() override { return 1; }
    int WithFrameDimAnalysis() override { return 1; }
    int WithFrameDimMove() override { return 1; }

private:
    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the page then shows defaults
};

#pragma once

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

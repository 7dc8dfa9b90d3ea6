#pragma once

#include "KivDrwStoredColour.h"

// The colours of the states of dimensions.
inline constexpr KivDrwComponentColour kKivDrwDimNotUpToDateColour{
    KivDrwKeys::DimNotUpToDateR, KivDrwKeys::DimNotUpToDateG, KivDrwKeys::DimNotUpToDateB};
inline constexpr KivDrwComponentColour kKivDrwDimNonAssociativeColour{
    KivDrwKeys::DimNonAssociativeR, KivDrwKeys::DimNonAssociativeG, KivDrwKeys::DimNonAssociativeB};
inline constexpr KivDrwComponentColour kKivDrwDimBrokenColour{KivDrwKeys::DimBrokenR, KivDrwKeys::DimBrokenG,
                                                              KivDrwKeys::DimBrokenB};
inline constexpr KivDrwComponentColour kKivDrwDimFakeColour{KivDrwKeys::DimFakeR, KivDrwKeys::DimFakeG,
                                                            KivDrwKeys::DimFakeB};
inline constexpr KivDrwComponentColour kKivDrwDimDrivingColour{
    KivDrwKeys::DimDrivingR, KivDrwKeys::DimDrivingG, KivDrwKeys::DimDrivingB};
inline constexpr KivDrwComponentColour kKivDrwDimTrueColour{KivDrwKeys::DimTrueR, KivDrwKeys::DimTrueG,
                                                            KivDrwKeys::DimTrueB};
inline constexpr KivDrwComponentColour kKivDrwDim3DCstColour{KivDrwKeys::Dim3DCstR, KivDrwKeys::Dim3DCstG,
                                                             KivDrwKeys::Dim3DCstB};
inline constexpr KivDrwComponentColour kKivDrwDimNotUpToDate3DCstColour{
    KivDrwKeys::DimNotUpToDate3DCstR, KivDrwKeys::DimNotUpToDate3DCstG, KivDrwKeys::DimNotUpToDate3DCstB};
inline constexpr KivDrwComponentColour kKivDrwIsolatedDimColour{
    KivDrwKeys::KivDrwIsolatedDimR, KivDrwKeys::KivDrwIsolatedDimG, KivDrwKeys::KivDrwIsolatedDimB};
inline constexpr KivDrwComponentColour kKivDrwDimOnNonVisGeomColour{
    KivDrwKeys::DrwDimOnNonVisGeomR, KivDrwKeys::DrwDimOnNonVisGeomG, KivDrwKeys::DrwDimOnNonVisGeomB};

#include "Kiv2DBaseSketcherSettingsAdapt.h"

#include "KivDrwSettingAccess.h"

#include "Command/KivRecord.h"

#include <utility>

namespace {

using Self = Kiv2DBaseSketcherSettingsAdapt;

// What a setter makes of the value that it is given, so that it is fit to be stored under the key.

int AsSwitch(int value, const KivDrwKey<int>&)
{
    return value != 0;
}

template <class T> T PositiveOrDefault(T value, const KivDrwKey<T>& key)
{
    return value > T{} ? value : key.makeDefault();
}

int DragModeOrDefault(int value, const KivDrwKey<int>& key)
{
    return value >= 0 && value <= 2 ? value : key.makeDefault();
}

// A listener who asked to be told is told even of what could not be stored.
template <class T> void StoreAndNotify(KivSettingRepository* repository, const KivDrwKey<T>& key, T value,
                                       Self& sketcher, void (Self::*event)(), int notify)
{
    KivDrwWrite(repository, key, value);
    if (notify) (sketcher.*event)();
}

unsigned int Packed(unsigned int r, unsigned int g, unsigned int b)
{
    unsigned int packed = 0;
    Self::SetRGB(&packed, r, g, b);
    return packed;
}

// The colors of diagnostics are numbered from 1; null for a number that has none.
const KivDrwKey<unsigned int>* DiagnosticColor(int diagnostic)
{
    switch (diagnostic) {
    case 1:
        return &KivDrwKeys::Drw_settings_ColorDiagOverDefinedElts;
    case 2:
        return &KivDrwKeys::Drw_settings_ColorDiagNotConsistentElts;
    case 3:
        return &KivDrwKeys::Drw_settings_ColorDiagNotChangedElts;
    case 4:
        return &KivDrwKeys::Drw_settings_ColorDiagWellDefinedElts;
    default:
        return nullptr;
    }
}

} // namespace

// The pairs of getter and setter, one an entry. Every name is written out and can be searched.

// A setter alone, for a getter with a rule of its own: it stores what Fit makes of the value under the key
// and tells the listeners by the operation Event.
#define KIV_SKETCHER_SETTER(T, key, Fit, Event, Set)                                                         \
    void Kiv2DBaseSketcherSettingsAdapt::Set(T value, int notify)                                            \
    {                                                                                                        \
        StoreAndNotify(_repository, KivDrwKeys::key, Fit(value, KivDrwKeys::key), *this, &Self::Event,       \
                       notify);                                                                              \
    }

// A pair with a key of its own.
#define KIV_SKETCHER_PAIR(T, key, Fit, Event, Get, Set)                                                      \
    T Kiv2DBaseSketcherSettingsAdapt::Get()                                                                  \
    {                                                                                                        \
        return KivDrwRead(_repository, KivDrwKeys::key);                                                     \
    }                                                                                                        \
    KIV_SKETCHER_SETTER(T, key, Fit, Event, Set)

// A pair that is governed by another pair's key.
#define KIV_SKETCHER_SAME(GoverningGet, GoverningSet, Get, Set)                                              \
    int Kiv2DBaseSketcherSettingsAdapt::Get()                                                                \
    {                                                                                                        \
        return GoverningGet();                                                                               \
    }                                                                                                        \
    void Kiv2DBaseSketcherSettingsAdapt::Set(int value, int notify)                                          \
    {                                                                                                        \
        GoverningSet(value, notify);                                                                         \
    }

// A pair that nobody can change here: it always answers this, and what is set is passed over.
#define KIV_SKETCHER_FIXED(answer, Get, Set)                                                                 \
    int Kiv2DBaseSketcherSettingsAdapt::Get()                                                                \
    {                                                                                                        \
        return answer;                                                                                       \
    }                                                                                                        \
    void Kiv2DBaseSketcherSettingsAdapt::Set(int, int) {}

// A pair of a color with a key of its own, stored packed.
#define KIV_SKETCHER_COLOR(key, Event, Get, Set)                                                             \
    void Kiv2DBaseSketcherSettingsAdapt::Get(unsigned int& r, unsigned int& g, unsigned int& b)              \
    {                                                                                                        \
        GetRGB(KivDrwRead(_repository, KivDrwKeys::key), &r, &g, &b);                                        \
    }                                                                                                        \
    void Kiv2DBaseSketcherSettingsAdapt::Set(unsigned int r, unsigned int g, unsigned int b, int notify)     \
    {                                                                                                        \
        StoreAndNotify(_repository, KivDrwKeys::key, Packed(r, g, b), *this, &Self::Event, notify);          \
    }

// A pair of a color that the sketcher has not: what is given stays as it is.
#define KIV_SKETCHER_NO_COLOR(Get, Set)                                                                      \
    void Kiv2DBaseSketcherSettingsAdapt::Get(unsigned int&, unsigned int&, unsigned int&) {}                 \
    void Kiv2DBaseSketcherSettingsAdapt::Set(unsigned int, unsigned int, unsigned int, int) {}

Kiv2DBaseSketcherSettingsAdapt::Kiv2DBaseSketcherSettingsAdapt(KivSettingRepository* repository)
    : _repository(repository)
{}

KivCallbackId Kiv2DBaseSketcherSettingsAdapt::AddCallback(KivCallbackEvent event,
                                                          KivCallbackManager::Function function)
{
    return _callbacks.AddCallback(event, std::move(function));
}

void Kiv2DBaseSketcherSettingsAdapt::RemoveCallback(KivCallbackId callback)
{
    _callbacks.RemoveCallback(callback);
}

void Kiv2DBaseSketcherSettingsAdapt::SaveRepository()
{
    if (_repository) _repository->SaveRepository(nullptr);
}

// Grid and snapping
KIV_SKETCHER_PAIR(int, Drw_settings_GridDisplay, AsSwitch, GridModify, GetGridVisuMode, SetGridVisuMode)
KIV_SKETCHER_PAIR(int, Drw_settings_GridSnapPt, AsSwitch, SnapModify, GetGridSnapMode, SetGridSnapMode)
KIV_SKETCHER_FIXED(0, GetGridGroundMode, SetGridGroundMode)
KIV_SKETCHER_PAIR(double, Drw_settings_GridPrimarySpacing, PositiveOrDefault, GridModify, GetGridPrimSpac,
                  SetGridPrimSpac)
KIV_SKETCHER_PAIR(int, Drw_settings_GridSecondaryStep, PositiveOrDefault, GridModify, GetGridSecStep,
                  SetGridSecStep)
KIV_SKETCHER_PAIR(double, Drw_settings_GridVPrimarySpacing, PositiveOrDefault, GridModify, GetGridVPrimSpac,
                  SetGridVPrimSpac)
KIV_SKETCHER_PAIR(int, Drw_settings_GridVSecondaryStep, PositiveOrDefault, GridModify, GetGridVSecStep,
                  SetGridVSecStep)
KIV_SKETCHER_PAIR(int, Drw_settings_AllowDistortions, AsSwitch, GridModify, GetAllowDistortions,
                  SetAllowDistortions)

// Smart pick; one switch governs the last three directions
KIV_SKETCHER_PAIR(int, Drw_settings_CpltPosSupport, AsSwitch, CpltModify, GetPosSupports, SetPosSupports)
KIV_SKETCHER_PAIR(int, Drw_settings_CpltPosHorVertTo, AsSwitch, CpltModify, GetPosHorVertTo, SetPosHorVertTo)
KIV_SKETCHER_PAIR(int, Drw_settings_CpltDirHorVert, AsSwitch, CpltModify, GetDirHorVert, SetDirHorVert)
KIV_SKETCHER_PAIR(int, Drw_settings_CpltDirParPerpTan, AsSwitch, CpltModify, GetDirParaPerpTan,
                  SetDirParaPerpTan)
KIV_SKETCHER_SAME(GetDirParaPerpTan, SetDirParaPerpTan, GetDirParallel, SetDirParallel)
KIV_SKETCHER_SAME(GetDirParaPerpTan, SetDirParaPerpTan, GetDirPerpend, SetDirPerpend)
KIV_SKETCHER_SAME(GetDirParaPerpTan, SetDirParaPerpTan, GetDirTangent, SetDirTangent)

// Constraints
KIV_SKETCHER_SETTER(int, CstCreation, AsSwitch, CpltModify, SetCreateConstraint)
KIV_SKETCHER_SAME(GetCreateConstraint, SetCreateConstraint, GetValidateConstraint, SetValidateConstraint)

int Kiv2DBaseSketcherSettingsAdapt::GetCreateConstraint()
{
    // Without any detection there is nothing to create constraints from.
    if (!GetPosSupports() && !GetPosHorVertTo() && !GetDirHorVert() && !GetDirParaPerpTan()) return 0;
    return KivDrwRead(_repository, KivDrwKeys::CstCreation);
}

int Kiv2DBaseSketcherSettingsAdapt::GetValidateCstType(int type)
{
    return type != 1 && type != 2 && type != 4 && type != 10;
}

// View and position of the cursor
KIV_SKETCHER_FIXED(1, GetViewNormalTo, SetViewNormalTo)
KIV_SKETCHER_FIXED(1, GetAnimate, SetAnimate)
KIV_SKETCHER_FIXED(1, GetShowPositionOnCursor, SetShowPositionOnCursor)
KIV_SKETCHER_SETTER(int, Drw_settings_ShowPosition, AsSwitch, CpltModify, SetShowPosition)

int Kiv2DBaseSketcherSettingsAdapt::GetShowPosition()
{
    // Deliberate: recorded and replayed runs always show it, so that no record depends on the user's choice.
    // Decided once a process.
    static const bool recorded = [] {
        const KivRecord* recorder = KivRecord::GetMain();
        return recorder && (recorder->IsReplay() || recorder->IsCapture());
    }();
    return recorded ? 1 : KivDrwRead(_repository, KivDrwKeys::Drw_settings_ShowPosition);
}

// Geometry
KIV_SKETCHER_PAIR(int, Drw_settings_CreateCenter, AsSwitch, GeomUIModify, GetCreateCenter, SetCreateCenter)
KIV_SKETCHER_PAIR(int, Drw_settings_DragWithEndPts, AsSwitch, GeomUIModify, GetDragWithEndPts,
                  SetDragWithEndPts)
KIV_SKETCHER_PAIR(int, Drw_settings_DragElts, AsSwitch, GeomUIModify, GetDragElts, SetDragElts)
KIV_SKETCHER_PAIR(int, Drw_settings_DiagElts, AsSwitch, GeomUIModify, GetDiagElts, SetDiagElts)
KIV_SKETCHER_PAIR(int, Drw_settings_DragModeR14, DragModeOrDefault, GeomUIModify, GetDragMode, SetDragMode)

// Colors
KIV_SKETCHER_COLOR(Drw_settings_ColorConstructElts, GeomUIModify, GetColorConstructElts,
                   SetColorConstructElts)
KIV_SKETCHER_COLOR(Drw_settings_ColorSmartPick, GeomUIModify, GetColorSmartPick, SetColorSmartPick)
KIV_SKETCHER_NO_COLOR(GetColorIsolatedElts, SetColorIsolatedElts)
KIV_SKETCHER_NO_COLOR(GetColorProtectedElts, SetColorProtectedElts)

void Kiv2DBaseSketcherSettingsAdapt::GetColorDiagElts(int diagnostic, unsigned int& r, unsigned int& g,
                                                      unsigned int& b)
{
    unsigned int packed = GetDefaultColor();
    if (const auto* const key = DiagnosticColor(diagnostic)) packed = KivDrwRead(_repository, *key);
    GetRGB(packed, &r, &g, &b);
}

void Kiv2DBaseSketcherSettingsAdapt::SetColorDiagElts(int diagnostic, unsigned int r, unsigned int g,
                                                      unsigned int b, int notify)
{
    if (const auto* const key = DiagnosticColor(diagnostic)) KivDrwWrite(_repository, *key, Packed(r, g, b));
    if (notify) GeomUIModify();
}

void Kiv2DBaseSketcherSettingsAdapt::GetRGB(unsigned int packed, unsigned int* r, unsigned int* g,
                                            unsigned int* b)
{
    if (!r || !g || !b) return;
    *r = (packed & 0xFF0000U) >> 16;
    *g = (packed & 0xFF00U) >> 8;
    *b = packed & 0xFFU;
}

void Kiv2DBaseSketcherSettingsAdapt::SetRGB(unsigned int* packed, unsigned int r, unsigned int g,
                                            unsigned int b)
{
    if (packed) *packed = r << 16 | g << 8 | b;
}

// Events

void Kiv2DBaseSketcherSettingsAdapt::DispatchMultiModify()
{
    _callbacks.DispatchCallbacks(MultiModification(), nullptr);
}

void Kiv2DBaseSketcherSettingsAdapt::GridModify()
{
    _callbacks.DispatchCallbacks(GridModification(), nullptr);
}

void Kiv2DBaseSketcherSettingsAdapt::GeomUIModify()
{
    _callbacks.DispatchCallbacks(GeomUIModification(), nullptr);
}

void Kiv2DBaseSketcherSettingsAdapt::SnapModify()
{
    _callbacks.DispatchCallbacks(SnapModification(), nullptr);
}

void Kiv2DBaseSketcherSettingsAdapt::Visu3DUIModify()
{
    _callbacks.DispatchCallbacks(Visu3DUIModification(), nullptr);
}

void Kiv2DBaseSketcherSettingsAdapt::CpltModify()
{
    _callbacks.DispatchCallbacks(CpltModification(), nullptr);
}

#include "Kiv2DBaseSketcherSettingsAdapt.h"

#include "KivDrwSettingAccess.h"

#include "Command/KivRecord.h"

#include <utility>

namespace {

int AsSwitch(int value)
{
    return value != 0;
}

double PositiveOrDefault(double value, const KivDrwKey<double>& key)
{
    return value > 0.0 ? value : key.makeDefault();
}
int PositiveOrDefault(int value, const KivDrwKey<int>& key)
{
    return value > 0 ? value : key.makeDefault();
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

int Kiv2DBaseSketcherSettingsAdapt::GetGridVisuMode()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_GridDisplay);
}

void Kiv2DBaseSketcherSettingsAdapt::SetGridVisuMode(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_GridDisplay, AsSwitch(on));
    if (notify) GridModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetGridSnapMode()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_GridSnapPt);
}

void Kiv2DBaseSketcherSettingsAdapt::SetGridSnapMode(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_GridSnapPt, AsSwitch(on));
    if (notify) SnapModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetGridGroundMode()
{
    return 0;
}

void Kiv2DBaseSketcherSettingsAdapt::SetGridGroundMode(int, int) {}

double Kiv2DBaseSketcherSettingsAdapt::GetGridPrimSpac()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_GridPrimarySpacing);
}

void Kiv2DBaseSketcherSettingsAdapt::SetGridPrimSpac(double spacing, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_GridPrimarySpacing,
                PositiveOrDefault(spacing, KivDrwKeys::Drw_settings_GridPrimarySpacing));
    if (notify) GridModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetGridSecStep()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_GridSecondaryStep);
}

void Kiv2DBaseSketcherSettingsAdapt::SetGridSecStep(int parts, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_GridSecondaryStep,
                PositiveOrDefault(parts, KivDrwKeys::Drw_settings_GridSecondaryStep));
    if (notify) GridModify();
}

double Kiv2DBaseSketcherSettingsAdapt::GetGridVPrimSpac()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_GridVPrimarySpacing);
}

void Kiv2DBaseSketcherSettingsAdapt::SetGridVPrimSpac(double spacing, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_GridVPrimarySpacing,
                PositiveOrDefault(spacing, KivDrwKeys::Drw_settings_GridVPrimarySpacing));
    if (notify) GridModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetGridVSecStep()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_GridVSecondaryStep);
}

void Kiv2DBaseSketcherSettingsAdapt::SetGridVSecStep(int parts, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_GridVSecondaryStep,
                PositiveOrDefault(parts, KivDrwKeys::Drw_settings_GridVSecondaryStep));
    if (notify) GridModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetAllowDistortions()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_AllowDistortions);
}

void Kiv2DBaseSketcherSettingsAdapt::SetAllowDistortions(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_AllowDistortions, AsSwitch(on));
    if (notify) GridModify();
}

// Smart pick and constraints

int Kiv2DBaseSketcherSettingsAdapt::GetPosSupports()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_CpltPosSupport);
}

void Kiv2DBaseSketcherSettingsAdapt::SetPosSupports(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_CpltPosSupport, AsSwitch(on));
    if (notify) CpltModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetPosHorVertTo()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_CpltPosHorVertTo);
}

void Kiv2DBaseSketcherSettingsAdapt::SetPosHorVertTo(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_CpltPosHorVertTo, AsSwitch(on));
    if (notify) CpltModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetDirHorVert()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_CpltDirHorVert);
}

void Kiv2DBaseSketcherSettingsAdapt::SetDirHorVert(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_CpltDirHorVert, AsSwitch(on));
    if (notify) CpltModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetDirParaPerpTan()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_CpltDirParPerpTan);
}

void Kiv2DBaseSketcherSettingsAdapt::SetDirParaPerpTan(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_CpltDirParPerpTan, AsSwitch(on));
    if (notify) CpltModify();
}

// One switch governs the three directions.

int Kiv2DBaseSketcherSettingsAdapt::GetDirParallel()
{
    return GetDirParaPerpTan();
}

void Kiv2DBaseSketcherSettingsAdapt::SetDirParallel(int on, int notify)
{
    SetDirParaPerpTan(on, notify);
}

int Kiv2DBaseSketcherSettingsAdapt::GetDirPerpend()
{
    return GetDirParaPerpTan();
}

void Kiv2DBaseSketcherSettingsAdapt::SetDirPerpend(int on, int notify)
{
    SetDirParaPerpTan(on, notify);
}

int Kiv2DBaseSketcherSettingsAdapt::GetDirTangent()
{
    return GetDirParaPerpTan();
}

void Kiv2DBaseSketcherSettingsAdapt::SetDirTangent(int on, int notify)
{
    SetDirParaPerpTan(on, notify);
}

int Kiv2DBaseSketcherSettingsAdapt::GetCreateConstraint()
{
    // Without any detection there is nothing to create constraints from.
    if (!GetPosSupports() && !GetPosHorVertTo() && !GetDirHorVert() && !GetDirParaPerpTan()) return 0;
    return KivDrwRead(_repository, KivDrwKeys::CstCreation);
}

void Kiv2DBaseSketcherSettingsAdapt::SetCreateConstraint(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::CstCreation, AsSwitch(on));
    if (notify) CpltModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetValidateConstraint()
{
    return GetCreateConstraint();
}

void Kiv2DBaseSketcherSettingsAdapt::SetValidateConstraint(int on, int notify)
{
    SetCreateConstraint(on, notify);
}

int Kiv2DBaseSketcherSettingsAdapt::GetValidateCstType(int type)
{
    return type != 1 && type != 2 && type != 4 && type != 10;
}

int Kiv2DBaseSketcherSettingsAdapt::GetViewNormalTo()
{
    return 1;
}

void Kiv2DBaseSketcherSettingsAdapt::SetViewNormalTo(int, int) {}

int Kiv2DBaseSketcherSettingsAdapt::GetAnimate()
{
    return 1;
}

void Kiv2DBaseSketcherSettingsAdapt::SetAnimate(int, int) {}

int Kiv2DBaseSketcherSettingsAdapt::GetShowPositionOnCursor()
{
    return 1;
}

void Kiv2DBaseSketcherSettingsAdapt::SetShowPositionOnCursor(int, int) {}

// Geometry

int Kiv2DBaseSketcherSettingsAdapt::GetCreateCenter()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_CreateCenter);
}

void Kiv2DBaseSketcherSettingsAdapt::SetCreateCenter(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_CreateCenter, AsSwitch(on));
    if (notify) GeomUIModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetDragWithEndPts()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_DragWithEndPts);
}

void Kiv2DBaseSketcherSettingsAdapt::SetDragWithEndPts(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_DragWithEndPts, AsSwitch(on));
    if (notify) GeomUIModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetDragElts()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_DragElts);
}

void Kiv2DBaseSketcherSettingsAdapt::SetDragElts(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_DragElts, AsSwitch(on));
    if (notify) GeomUIModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetDiagElts()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_DiagElts);
}

void Kiv2DBaseSketcherSettingsAdapt::SetDiagElts(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_DiagElts, AsSwitch(on));
    if (notify) GeomUIModify();
}

int Kiv2DBaseSketcherSettingsAdapt::GetDragMode()
{
    return KivDrwRead(_repository, KivDrwKeys::Drw_settings_DragModeR14);
}

void Kiv2DBaseSketcherSettingsAdapt::SetDragMode(int mode, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_DragModeR14, mode >= 0 && mode <= 2 ? mode : 1);
    if (notify) GeomUIModify();
}

// Colors

void Kiv2DBaseSketcherSettingsAdapt::GetColorDiagElts(int diagnostic, unsigned int& r, unsigned int& g,
                                                      unsigned int& b)
{
    unsigned int packed = GetDefaultColor();
    if (const auto* key = DiagnosticColor(diagnostic)) packed = KivDrwRead(_repository, *key);
    GetRGB(packed, &r, &g, &b);
}

void Kiv2DBaseSketcherSettingsAdapt::SetColorDiagElts(int diagnostic, unsigned int r, unsigned int g,
                                                      unsigned int b, int notify)
{
    unsigned int packed = 0;
    SetRGB(&packed, r, g, b);
    if (const auto* key = DiagnosticColor(diagnostic)) KivDrwWrite(_repository, *key, packed);
    if (notify) GeomUIModify();
}

// These have no color of their own: what is given stays as it is.

void Kiv2DBaseSketcherSettingsAdapt::GetColorIsolatedElts(unsigned int&, unsigned int&, unsigned int&) {}

void Kiv2DBaseSketcherSettingsAdapt::SetColorIsolatedElts(unsigned int, unsigned int, unsigned int, int) {}

void Kiv2DBaseSketcherSettingsAdapt::GetColorProtectedElts(unsigned int&, unsigned int&, unsigned int&) {}

void Kiv2DBaseSketcherSettingsAdapt::SetColorProtectedElts(unsigned int, unsigned int, unsigned int, int) {}

void Kiv2DBaseSketcherSettingsAdapt::GetColorConstructElts(unsigned int& r, unsigned int& g, unsigned int& b)
{
    GetRGB(KivDrwRead(_repository, KivDrwKeys::Drw_settings_ColorConstructElts), &r, &g, &b);
}

void Kiv2DBaseSketcherSettingsAdapt::SetColorConstructElts(unsigned int r, unsigned int g, unsigned int b,
                                                           int notify)
{
    unsigned int packed = 0;
    SetRGB(&packed, r, g, b);
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_ColorConstructElts, packed);
    if (notify) GeomUIModify();
}

void Kiv2DBaseSketcherSettingsAdapt::GetColorSmartPick(unsigned int& r, unsigned int& g, unsigned int& b)
{
    GetRGB(KivDrwRead(_repository, KivDrwKeys::Drw_settings_ColorSmartPick), &r, &g, &b);
}

void Kiv2DBaseSketcherSettingsAdapt::SetColorSmartPick(unsigned int r, unsigned int g, unsigned int b,
                                                       int notify)
{
    unsigned int packed = 0;
    SetRGB(&packed, r, g, b);
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_ColorSmartPick, packed);
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

// Position of the cursor

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

void Kiv2DBaseSketcherSettingsAdapt::SetShowPosition(int on, int notify)
{
    KivDrwWrite(_repository, KivDrwKeys::Drw_settings_ShowPosition, AsSwitch(on));
    if (notify) CpltModify();
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

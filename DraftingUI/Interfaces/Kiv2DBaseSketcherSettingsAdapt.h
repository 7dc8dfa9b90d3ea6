#pragma once

#include "Workbench/KivSketcherSettings.h"

class KivSettingRepository;

// Serves sketcher settings from a repository, both ways; without one every reader answers its default and
// every setter stores nothing, but still notifies when asked to.
class Kiv2DBaseSketcherSettingsAdapt : public KivSketcherSettings {
public:
    explicit Kiv2DBaseSketcherSettingsAdapt(KivSettingRepository* repository);

    KivCallbackId AddCallback(KivCallbackEvent event, KivCallbackManager::Function function) override;
    void RemoveCallback(KivCallbackId callback) override;

    void SaveRepository() override;

    int GetGridVisuMode() override;
    int GetGridGroundMode() override;
    int GetGridSnapMode() override;
    double GetGridPrimSpac() override;
    int GetGridSecStep() override;
    int GetAllowDistortions() override;
    double GetGridVPrimSpac() override;
    int GetGridVSecStep() override;
    int GetPosSupports() override;
    int GetPosHorVertTo() override;
    int GetDirHorVert() override;
    int GetDirParaPerpTan() override;
    int GetDirParallel() override;
    int GetDirPerpend() override;
    int GetDirTangent() override;
    int GetCreateConstraint() override;
    int GetViewNormalTo() override;
    int GetAnimate() override;
    int GetCreateCenter() override;
    int GetValidateConstraint() override;
    int GetValidateCstType(int type) override;
    int GetDragWithEndPts() override;
    int GetDragMode() override;
    int GetDragElts() override;
    int GetDiagElts() override;
    void GetColorDiagElts(int diagnostic, unsigned int& r, unsigned int& g, unsigned int& b) override;
    void GetColorIsolatedElts(unsigned int& r, unsigned int& g, unsigned int& b) override;
    void GetColorProtectedElts(unsigned int& r, unsigned int& g, unsigned int& b) override;
    void GetColorConstructElts(unsigned int& r, unsigned int& g, unsigned int& b) override;
    void GetColorSmartPick(unsigned int& r, unsigned int& g, unsigned int& b) override;
    int GetShowPosition() override;
    int GetShowPositionOnCursor() override;

    void SetGridVisuMode(int shown, int notify) override;
    void SetGridGroundMode(int mode, int notify) override;
    void SetGridSnapMode(int snapping, int notify) override;
    void SetGridPrimSpac(double spacing, int notify) override;
    void SetGridSecStep(int parts, int notify) override;
    void SetAllowDistortions(int allowed, int notify) override;
    void SetGridVPrimSpac(double spacing, int notify) override;
    void SetGridVSecStep(int parts, int notify) override;
    void SetPosSupports(int on, int notify) override;
    void SetPosHorVertTo(int on, int notify) override;
    void SetDirHorVert(int on, int notify) override;
    void SetDirParaPerpTan(int on, int notify) override;
    void SetDirParallel(int on, int notify) override;
    void SetDirPerpend(int on, int notify) override;
    void SetDirTangent(int on, int notify) override;
    void SetCreateConstraint(int on, int notify) override;
    void SetViewNormalTo(int on, int notify) override;
    void SetAnimate(int on, int notify) override;
    void SetCreateCenter(int on, int notify) override;
    void SetValidateConstraint(int on, int notify) override;
    void SetDragWithEndPts(int on, int notify) override;
    void SetDragMode(int mode, int notify) override;
    void SetDragElts(int on, int notify) override;
    void SetDiagElts(int on, int notify) override;
    void SetColorDiagElts(int diagnostic, unsigned int r, unsigned int g, unsigned int b,
                          int notify) override;
    void SetColorIsolatedElts(unsigned int r, unsigned int g, unsigned int b, int notify) override;
    void SetColorProtectedElts(unsigned int r, unsigned int g, unsigned int b, int notify) override;
    void SetColorConstructElts(unsigned int r, unsigned int g, unsigned int b, int notify) override;
    void SetColorSmartPick(unsigned int r, unsigned int g, unsigned int b, int notify) override;
    void SetShowPosition(int on, int notify) override;
    void SetShowPositionOnCursor(int on, int notify) override;

    void DispatchMultiModify() override;
    void GridModify() override;
    void GeomUIModify() override;
    void SnapModify() override;
    void Visu3DUIModify() override;
    void CpltModify() override;

    // A packed color 0xRRGGBB and its components. Nothing happens when an output is null.
    static void GetRGB(unsigned int packed, unsigned int* r, unsigned int* g, unsigned int* b);
    static void SetRGB(unsigned int* packed, unsigned int r, unsigned int g, unsigned int b);

protected:
    // The packed color of what has none of its own.
    virtual unsigned int GetDefaultColor() = 0;

private:
    KivCallbackManager _callbacks;
    KivSettingRepository* _repository; // not owned
};

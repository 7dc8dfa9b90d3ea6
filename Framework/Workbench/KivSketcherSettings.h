#pragma once

#include "Base/KivResult.h"
#include "Command/KivCallbackManager.h"

// The settings of a sketcher, which it reads and writes and whose changes it is told. A getter answers what
// is stored, also what no setter would store: a switch is off at 0 and on at any other number; a length, in
// millimeters, and a number of parts may be 0 or negative, a drag mode any number. Color components are 0 to
// 255; those of a color that the sketcher has not are left as they are. A setter stores a value that is fit
// (a switch as 0 or 1) and, when notify is not zero, tells the listeners of its kind of event.
class KivSketcherSettings {
public:
    virtual ~KivSketcherSettings() = default;

    // The settings of the workbench that is current, or null. Not owned.
    static void SetSketcherSettings(KivSketcherSettings* settings);
    static KivSketcherSettings* GetSketcherSettings();

    // The events of AddCallback.
    static KivCallbackEvent GridModification() { return "KivSketcherGridModification"; }
    static KivCallbackEvent SnapModification() { return "KivSketcherSnapModification"; }
    static KivCallbackEvent CpltModification() { return "KivSketcherCpltModification"; }
    static KivCallbackEvent GeomUIModification() { return "KivSketcherGeomUIModification"; }
    static KivCallbackEvent Visu3DUIModification() { return "KivSketcherVisu3DUIModification"; }
    static KivCallbackEvent MultiModification() { return "KivSketcherMultiModification"; }

    virtual KivCallbackId AddCallback(KivCallbackEvent event, KivCallbackManager::Function function) = 0;
    virtual void RemoveCallback(KivCallbackId callback) = 0;

    virtual void SaveRepository() = 0;

    virtual int GetGridVisuMode() = 0;
    virtual int GetGridGroundMode() = 0;
    virtual int GetGridSnapMode() = 0;
    virtual double GetGridPrimSpac() = 0;
    virtual int GetGridSecStep() = 0;
    virtual int GetAllowDistortions() = 0;
    virtual double GetGridVPrimSpac() = 0;
    virtual int GetGridVSecStep() = 0;
    virtual int GetPosSupports() = 0;
    virtual int GetPosHorVertTo() = 0;
    virtual int GetDirHorVert() = 0;
    virtual int GetDirParaPerpTan() = 0;
    virtual int GetDirParallel() = 0;
    virtual int GetDirPerpend() = 0;
    virtual int GetDirTangent() = 0;
    virtual int GetCreateConstraint() = 0;
    virtual int GetViewNormalTo() = 0;
    virtual int GetAnimate() = 0;
    virtual int GetCreateCenter() = 0;
    virtual int GetValidateConstraint() = 0;
    virtual int GetValidateCstType(int type) = 0;
    virtual int GetDragWithEndPts() = 0;
    virtual int GetDragMode() = 0;
    virtual int GetDragElts() = 0;
    virtual int GetDiagElts() = 0;
    virtual void GetColorDiagElts(int diagnostic, unsigned int& r, unsigned int& g, unsigned int& b) = 0;
    virtual void GetColorIsolatedElts(unsigned int& r, unsigned int& g, unsigned int& b) = 0;
    virtual void GetColorProtectedElts(unsigned int& r, unsigned int& g, unsigned int& b) = 0;
    virtual void GetColorConstructElts(unsigned int& r, unsigned int& g, unsigned int& b) = 0;
    virtual void GetColorSmartPick(unsigned int& r, unsigned int& g, unsigned int& b) = 0;
    virtual int GetShowPosition() = 0;
    virtual int GetShowPositionOnCursor() = 0;

    virtual void SetGridVisuMode(int shown, int notify) = 0;
    virtual void SetGridGroundMode(int mode, int notify) = 0;
    virtual void SetGridSnapMode(int snapping, int notify) = 0;
    virtual void SetGridPrimSpac(double spacing, int notify) = 0;
    virtual void SetGridSecStep(int parts, int notify) = 0;
    virtual void SetAllowDistortions(int allowed, int notify) = 0;
    virtual void SetGridVPrimSpac(double spacing, int notify) = 0;
    virtual void SetGridVSecStep(int parts, int notify) = 0;
    virtual void SetPosSupports(int on, int notify) = 0;
    virtual void SetPosHorVertTo(int on, int notify) = 0;
    virtual void SetDirHorVert(int on, int notify) = 0;
    virtual void SetDirParaPerpTan(int on, int notify) = 0;
    virtual void SetDirParallel(int on, int notify) = 0;
    virtual void SetDirPerpend(int on, int notify) = 0;
    virtual void SetDirTangent(int on, int notify) = 0;
    virtual void SetCreateConstraint(int on, int notify) = 0;
    virtual void SetViewNormalTo(int on, int notify) = 0;
    virtual void SetAnimate(int on, int notify) = 0;
    virtual void SetCreateCenter(int on, int notify) = 0;
    virtual void SetValidateConstraint(int on, int notify) = 0;
    virtual void SetDragWithEndPts(int on, int notify) = 0;
    virtual void SetDragMode(int mode, int notify) = 0;
    virtual void SetDragElts(int on, int notify) = 0;
    virtual void SetDiagElts(int on, int notify) = 0;
    virtual void SetColorDiagElts(int diagnostic, unsigned int r, unsigned int g, unsigned int b,
                                  int notify) = 0;
    virtual void SetColorIsolatedElts(unsigned int r, unsigned int g, unsigned int b, int notify) = 0;
    virtual void SetColorProtectedElts(unsigned int r, unsigned int g, unsigned int b, int notify) = 0;
    virtual void SetColorConstructElts(unsigned int r, unsigned int g, unsigned int b, int notify) = 0;
    virtual void SetColorSmartPick(unsigned int r, unsigned int g, unsigned int b, int notify) = 0;
    virtual void SetShowPosition(int on, int notify) = 0;
    virtual void SetShowPositionOnCursor(int on, int notify) = 0;

    virtual void DispatchMultiModify() = 0;
    virtual void GridModify() = 0;
    virtual void GeomUIModify() = 0;
    virtual void SnapModify() = 0;
    virtual void Visu3DUIModify() = 0;
    virtual void CpltModify() = 0;
};

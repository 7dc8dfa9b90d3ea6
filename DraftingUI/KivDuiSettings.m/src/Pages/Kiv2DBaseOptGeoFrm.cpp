#include "Pages/Kiv2DBaseOptGeoFrm.h"

#include "KivDrwKinds.h"

namespace {

// The groups stand in two columns; constraints are as high as the two groups beside them.
enum Column : short { Left, Right };

} // namespace

void Kiv2DBaseOptGeoFrm::Build()
{
    if (WithFrameGeomCreation()) {
        KivFormGroup creation = Group("frameGeomCreation", "I_CircleCtrRad", 0, Left);
        creation.Row().Check("checkCreateCenter", _createGeomCenter);
        creation.Row().Check("checkEndPtsDupli", _endPtsDupliGenGeom);
        creation.Row().Check("checkShowHV", _showHV);
    }
    if (WithFrameConstraint()) BuildConstraint();
    if (WithFrameGeomDrag()) BuildDrag();
    if (WithFrameSmartPick()) BuildSmartPick();
    if (WithFrameGeomColor()) BuildColor();
}

void Kiv2DBaseOptGeoFrm::BuildConstraint()
{
    KivFormGroup constraint = Group("frameConstraint", "I_DrwConstraint", 0, Right, 2);
    _rules.AvailableWhile([this] { return FindsAnything(); },
                          {constraint.Row().At(0, 2).Check("checkCstCreation", _cstCreation)});
    constraint.Row().At(0, 2).Check("checkCstVisu", _cstVisu);
    std::vector<KivDrwLockDialog*> shown = {
        constraint.Row("labelCstRefSize")
            .Spinner("spinnerCstRefSize", _cstRefSize, KivDrwKinds::SymbolLength),
        constraint.Row("labelCstColor").Color("comboCstColor", _cstColor)};
    struct Symbol {
        const char* name;
        KivPropertyOf<unsigned char>& property;
    };
    const Symbol symbols[][2] = {
        {{"checkCstHori", _cstVisuHori}, {"checkCstVerti", _cstVisuVerti}},
        {{"checkCstPara", _cstVisuPara}, {"checkCstPerpen", _cstVisuPerpen}},
        {{"checkCstConcen", _cstVisuConcen}, {"checkCstCoinci", _cstVisuCoinci}},
        {{"checkCstTangen", _cstVisuTangen}, {"checkCstSym", _cstVisuSym}},
    };
    for (const auto& pair : symbols) {
        KivFormRow row = constraint.Row();
        for (const auto& [name, property] : pair) shown.push_back(row.Check(name, property));
    }
    _rules.AvailableWhile([this] { return _cstVisu.cached; }, shown);
}

void Kiv2DBaseOptGeoFrm::BuildDrag()
{
    KivFormGroup drag = Group("frameGeomDrag", "I_Select", 1, Left);
    drag.Row().Check("checkGeomManip", _allowGeomManip);
    KivDrwLockDialog* endPoints = drag.Row().Check("checkDragEndPts", _dragWithEndPts);
    KivDrwLockDialog* modes = drag.Radios("frameDragMode", _dragSolveMode, KivDrwKinds::DragMode);
    _rules.AvailableWhile([this] { return _allowGeomManip.cached; }, {endPoints, modes});
}

void Kiv2DBaseOptGeoFrm::BuildSmartPick()
{
    KivFormGroup pick = Group("frameSmartPick", "I_SmartPick", 2, Left);
    pick.Row().At(0, 2).Check("checkPickCoincid", _smartPickCoincid);
    pick.Row().At(0, 2).Check("checkPickAlign", _smartPickAlign);
    pick.Row().At(0, 2).Check("checkPickParaPerpenTang", _smartPickParaPerpenTang);
    pick.Row().At(0, 2).Check("checkPickHoriVerti", _smartPickHoriVerti);
    _rules.AvailableWhile([this] { return FindsAnything(); },
                          {pick.Row("labelSmartPickColor").Color("comboSmartPickColor", _smartPickColor)});
}

// Constraints are created from what smart picking has found.
bool Kiv2DBaseOptGeoFrm::FindsAnything() const
{
    return _smartPickCoincid.cached || _smartPickAlign.cached || _smartPickParaPerpenTang.cached ||
           _smartPickHoriVerti.cached;
}

void Kiv2DBaseOptGeoFrm::BuildColor()
{
    KivFormGroup color = Group("frameGeomColor", "I_ColorChooser", 2, Right);
    color.Row().At(0, 2).Check("checkVisuDiagnostic", _visuDiagnostic);
    _rules.AvailableWhile([this] { return _visuDiagnostic.cached; },
                          {color.Row("labelOverCons").Color("comboOverCons", _overConsEltsColor),
                           color.Row("labelIncons").Color("comboIncons", _inconsEltsColor),
                           color.Row("labelNotChan").Color("comboNotChan", _notChanEltsColor),
                           color.Row("labelIsoCons").Color("comboIsoCons", _isoConsEltsColor)});
    color.Row("labelConst").Color("comboConst", _constEltsColor);
}

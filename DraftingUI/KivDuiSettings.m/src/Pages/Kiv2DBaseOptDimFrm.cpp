#include "Pages/Kiv2DBaseOptDimFrm.h"

#include "KivDrwKinds.h"

namespace {

// The groups stand in two columns; the analysis is as high as the two groups beside it.
enum Column : short { Left, Right };

} // namespace

// A state of dimensions: whether it has a color of its own, and which.
struct Kiv2DBaseOptDimFrm::AnalyzedState {
    const char* checkName;
    KivPropertyOf<unsigned char>& isColored;
    const char* comboName;
    KivPropertyOf<KivPageColor>& color;
};

void Kiv2DBaseOptDimFrm::Build()
{
    if (WithFrameDimCreation()) BuildCreation();
    if (WithFrameDimAnalysis()) BuildAnalysis();
    if (WithFrameDimLinePos()) BuildLinePos();
    if (WithFrameDimLineUp()) BuildLineUp();
    if (WithFrameDimMove()) BuildMove();
}

void Kiv2DBaseOptDimFrm::BuildCreation()
{
    KivFormGroup creation = Group("frameDimCreation", "I_DrwDim", 0, Left);
    creation.Row().Check("checkDimSketch", _dimSketch);
    creation.Row().Check("checkDimDrivingAuto", _dimDrivingAuto);
    creation.Row().Check("checkDimForce2D", _dimForce2D);
    creation.Row().Check("checkDimCircle", _dimCircle);
    creation.Row().Check("checkDimChamfer", _dimDetectChamfer);
    creation.Row().Check("checkDimApproximate", _assocDimOnApproximate);
}

void Kiv2DBaseOptDimFrm::BuildLinePos()
{
    KivFormGroup position = Group("frameDimLinePos", "I_Dim2D", 1, Left);
    position.Row("labelDimLinePos").Spinner("spinnerDimLinePos", _dimLinePosValue, KivDrwKinds::SymbolLength);
    position.Row().At(0, 2).Check("checkDimLinePosRelative", _dimLinePosRelative);
    position.Row().At(0, 2).Check("checkDimLineUpEnds", _dimLineUpEnds);
}

void Kiv2DBaseOptDimFrm::BuildLineUp()
{
    KivFormGroup lineUp = Group("frameDimLineUp", "I_DrwLineUp", 2, Left);
    KivFormRow base = lineUp.Row("labelLineUpBase");
    base.Spinner("spinnerLineUpBaseLength", _lineUpBaseOffsetLength, KivDrwKinds::SymbolLength);
    base.Spinner("spinnerLineUpBaseAngle", _lineUpBaseOffsetAngle, KivDrwKinds::Angle);
    KivFormRow offset = lineUp.Row("labelLineUpOffset");
    offset.Spinner("spinnerLineUpLength", _lineUpOffsetLength, KivDrwKinds::SymbolLength);
    offset.Spinner("spinnerLineUpAngle", _lineUpOffsetAngle, KivDrwKinds::Angle);
    lineUp.Row().At(0, 3).Check("checkLineUpStack", _lineUpStackVal);
    lineUp.Row().At(0, 3).Check("checkLineUpCumul", _lineUpCumulVal);
    lineUp.Row().At(0, 3).Check("checkLineUpFunnel", _lineUpAutoFunnel);
}

void Kiv2DBaseOptDimFrm::BuildAnalysis()
{
    const AnalyzedState states[] = {
        {"checkDimNotUpToDate", _dimNotUpToDate, "comboDimNotUpToDate", _dimNotUpToDateColor},
        {"checkDimNonAssoc", _dimNonAssociative, "comboDimNonAssoc", _dimNonAssociativeColor},
        {"checkDimIsolated", _isolatedDimension, "comboDimIsolated", _isolatedDimensionColor},
        {"checkDimBroken", _dimBroken, "comboDimBroken", _dimBrokenColor},
        {"checkDimFake", _dimFake, "comboDimFake", _dimFakeColor},
        {"checkDimDriving", _dimDriving, "comboDimDriving", _dimDrivingColor},
        {"checkDimTrue", _dimTrue, "comboDimTrue", _dimTrueColor},
        {"checkDim3DCst", _dim3DCst, "comboDim3DCst", _dim3DCstColor},
        {"checkDimOld3DCst", _dimNotUpToDate3DCst, "comboDimOld3DCst", _dimNotUpToDate3DCstColor},
        {"checkDimNonVis", _dimOnNonVisGeom, "comboDimNonVis", _dimOnNonVisGeomColor},
    };
    KivFormGroup analysis = Group("frameDimAnalysis", "I_ColorChooser", 0, Right, 2);
    analysis.Row().At(0, 2).Check("checkDimDesignMode", _dimDesignMode);
    for (const AnalyzedState& state : states) {
        KivFormRow row = analysis.Row();
        _rules.AvailableWhile([this] { return _dimDesignMode.cached; },
                              {row.Check(state.checkName, state.isColored)});
        _rules.AvailableWhile(
            [this, &isColored = state.isColored] { return _dimDesignMode.cached && isColored.cached; },
            {row.Color(state.comboName, state.color)});
    }
}

void Kiv2DBaseOptDimFrm::BuildMove()
{
    KivFormGroup move = Group("frameDimMove", "I_Select", 2, Right);
    move.Row().Check("checkDimSnap", _dimSnap);
    KivDrwLockDialog* onGrid = move.Row().Check("checkDimSnapOnGrid", _dimSnapOnGrid);
    KivDrwLockDialog* value = move.Row().Check("checkDimSnapValue", _dimSnapValue);
    _rules.AvailableWhile([this] { return _dimSnap.cached; }, {onGrid, value});
    move.Row().Check("checkDimMoveSubPart", _dimMoveSubPart);
}

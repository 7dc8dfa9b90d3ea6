#include "Pages/Kiv2DBaseOptDimFrm.h"

#include "KivDrwKinds.h"

namespace {

// The groups stand in two columns; the analysis is as high as the two groups beside it.
enum Column : short { Left, Right };

} // namespace

// A state of dimensions: whether it has a color of its own, and which.
struct Kiv2DBaseOptDimFrm::AnalysisRow {
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
    creation.Line().Check("checkDimSketch", _dimSketch);
    creation.Line().Check("checkDimDrivingAuto", _dimDrivingAuto);
    creation.Line().Check("checkDimForce2D", _dimForce2D);
    creation.Line().Check("checkDimCircle", _dimCircle);
    creation.Line().Check("checkDimChamfer", _dimDetectChamfer);
    creation.Line().Check("checkDimApproximate", _assocDimOnApproximate);
}

void Kiv2DBaseOptDimFrm::BuildLinePos()
{
    KivFormGroup position = Group("frameDimLinePos", "I_Dim2D", 1, Left);
    position.Line("labelDimLinePos")
        .Spinner("spinnerDimLinePos", _dimLinePosValue, KivDrwKinds::SymbolLength);
    position.Line().At(0, 2).Check("checkDimLinePosRelative", _dimLinePosRelative);
    position.Line().At(0, 2).Check("checkDimLineUpEnds", _dimLineUpEnds);
}

void Kiv2DBaseOptDimFrm::BuildLineUp()
{
    KivFormGroup lineUp = Group("frameDimLineUp", "I_DrwLineUp", 2, Left);
    KivFormLine base = lineUp.Line("labelLineUpBase");
    base.Spinner("spinnerLineUpBaseLength", _lineUpBaseOffsetLength, KivDrwKinds::SymbolLength);
    base.Spinner("spinnerLineUpBaseAngle", _lineUpBaseOffsetAngle, KivDrwKinds::Angle);
    KivFormLine offset = lineUp.Line("labelLineUpOffset");
    offset.Spinner("spinnerLineUpLength", _lineUpOffsetLength, KivDrwKinds::SymbolLength);
    offset.Spinner("spinnerLineUpAngle", _lineUpOffsetAngle, KivDrwKinds::Angle);
    lineUp.Line().At(0, 3).Check("checkLineUpStack", _lineUpStackVal);
    lineUp.Line().At(0, 3).Check("checkLineUpCumul", _lineUpCumulVal);
    lineUp.Line().At(0, 3).Check("checkLineUpFunnel", _lineUpAutoFunnel);
}

void Kiv2DBaseOptDimFrm::BuildAnalysis()
{
    const AnalysisRow rows[] = {
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
    analysis.Line().At(0, 2).Check("checkDimDesignMode", _dimDesignMode);
    for (const AnalysisRow& row : rows) {
        KivFormLine line = analysis.Line();
        _rules.AvailableWhile([this] { return _dimDesignMode.cached; },
                              {line.Check(row.checkName, row.isColored)});
        _rules.AvailableWhile(
            [this, &isColored = row.isColored] { return _dimDesignMode.cached && isColored.cached; },
            {line.Color(row.comboName, row.color)});
    }
}

void Kiv2DBaseOptDimFrm::BuildMove()
{
    KivFormGroup move = Group("frameDimMove", "I_Select", 2, Right);
    move.Line().Check("checkDimSnap", _dimSnap);
    KivDrwLockDialog* onGrid = move.Line().Check("checkDimSnapOnGrid", _dimSnapOnGrid);
    KivDrwLockDialog* value = move.Line().Check("checkDimSnapValue", _dimSnapValue);
    _rules.AvailableWhile([this] { return _dimSnap.cached; }, {onGrid, value});
    move.Line().Check("checkDimMoveSubPart", _dimMoveSubPart);
}

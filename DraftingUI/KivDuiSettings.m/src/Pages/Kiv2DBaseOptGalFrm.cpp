#include "Pages/Kiv2DBaseOptGalFrm.h"

#include "KivDrwKinds.h"

void Kiv2DBaseOptGalFrm::Build()
{
    if (WithFrameRuler()) Group("frameRuler", "").Line().Check("checkRuler", _showRuler);
    if (WithFrameGrid()) BuildGrid();
    if (WithFrameRotation()) BuildRotation();
    if (WithFrameColor()) BuildColor();
    if (WithFrameTree()) {
        KivFormGroup tree = Group("frameTreeVisu", "I_Formula");
        tree.Line().Check("_checkTreeParameters", _displayParam);
        tree.Line().Check("_checkTreeFormulas", _displayRelation);
    }
    if (WithFrame2DAxis()) Build2DAxis();
    if (WithFrameHideWhenStartWkb())
        Group("frmHideStartWkb", "").Line().Check("chkHideStartWkb", _hideWhenStartWkb);
}

void Kiv2DBaseOptGalFrm::BuildGrid()
{
    KivFormGroup grid = Group("frameGrid", "I_DisplayGrid");
    grid.Line().Check("checkGrid", _displayGrid);
    grid.Line().Check("checkSnap", _snapToPoint);
    grid.Line().Check("checkAllowDistortions", _allowDistortions);

    KivFormLine spacing = grid.Line("labelGridSpacing");
    spacing.Spinner("editorGridSpacing", _primSpaceH, KivDrwKinds::SheetLength, [this] { MirrorSpacing(); });
    _spacingV = spacing.Spinner("editorGridSpacingV", _primSpaceV, KivDrwKinds::SheetLength);

    KivFormLine graduation = grid.Line("labelGridGraduation");
    graduation.Spinner("editorGridGraduation", _gradH, KivDrwKinds::Graduation,
                       [this] { MirrorGraduation(); });
    _graduationV = graduation.Spinner("editorGridGraduationV", _gradV, KivDrwKinds::Graduation);

    // The vertical grid has a spacing and a graduation of its own only while distortions are allowed.
    _rules.AvailableWhile([this] { return _allowDistortions.cached != 0; },
                          {_spacingV.Get(), _graduationV.Get()});
}

void Kiv2DBaseOptGalFrm::BuildRotation()
{
    KivFormGroup rotation = Group("frameRotation", "I_Rotate");
    rotation.Line("labelRotSnapAngle")
        .Spinner("spinnerRotSnapAngle", _rotationSnapAngle, KivDrwKinds::SnapAngle);
    rotation.Line().Check("checkRotSnapAuto", _rotationAutoSnap);
}

void Kiv2DBaseOptGalFrm::BuildColor()
{
    KivFormGroup color = Group("frameColor", "I_ColorChooser");
    KivFormLine sheet = color.Line("labelBackgroundColor");
    sheet.Color("comboBackgroundColor", _sheetColor);
    sheet.Check("checkGraduatedColor", _sheetColorGrad);
    KivFormLine detail = color.Line("labelBackgroundColorDD");
    detail.Color("comboBackgroundColorDD", _detailColor);
    detail.Check("checkGraduatedColorDD", _detailColorGrad);
}

void Kiv2DBaseOptGalFrm::Build2DAxis()
{
    KivFormGroup axis = Group("frameViewReferential", "I_DisplayViewReferential");
    axis.Line().Check("checkViewReferential", _2DAxisDisplay);
    axis.Line().Check("checkViewRefZoom", _2DAxisZoom);
    axis.Line("labelViewAxisSize").Spinner("spinnerViewAxisSize", _2DAxisLength, KivDrwKinds::SheetLength);
}

// Without distortions the vertical grid follows the horizontal one; the spinner's notification stores it.
void Kiv2DBaseOptGalFrm::MirrorSpacing()
{
    if (!_allowDistortions.cached && _spacingV)
        _spacingV->SetValue(_primSpaceH.cached * KivDrwKinds::SheetLength.shownPerStored, 1);
}

void Kiv2DBaseOptGalFrm::MirrorGraduation()
{
    if (!_allowDistortions.cached && _graduationV)
        _graduationV->SetCurrentValue(static_cast<float>(_gradH.cached), 1);
}

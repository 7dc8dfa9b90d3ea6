#include "Pages/Kiv2DBaseOptGalFrm.h"

#include "KivDrwKinds.h"

void Kiv2DBaseOptGalFrm::Build()
{
    if (WithFrameRuler()) Group("frameRuler", "").Row().Check("checkRuler", _showRuler);
    if (WithFrameGrid()) BuildGrid();
    if (WithFrameRotation()) BuildRotation();
    if (WithFrameColor()) BuildColor();
    if (WithFrameTree()) {
        KivFormGroup tree = Group("frameTreeVisu", "I_Formula");
        tree.Row().Check("_checkTreeParameters", _displayParam);
        tree.Row().Check("_checkTreeFormulas", _displayRelation);
    }
    if (WithFrame2DAxis()) Build2DAxis();
    if (WithFrameHideWhenStartWkb())
        Group("frmHideStartWkb", "").Row().Check("chkHideStartWkb", _hideWhenStartWkb);
}

void Kiv2DBaseOptGalFrm::BuildGrid()
{
    KivFormGroup grid = Group("frameGrid", "I_DisplayGrid");
    grid.Row().Check("checkGrid", _displayGrid);
    grid.Row().Check("checkSnap", _snapToPoint);
    grid.Row().Check("checkAllowDistortions", _allowDistortions);

    KivFormRow spacing = grid.Row("labelGridSpacing");
    spacing.Spinner("editorGridSpacing", _primSpaceH, KivDrwKinds::SheetLength, [this] { MirrorSpacing(); });
    _spacingV = spacing.Spinner("editorGridSpacingV", _primSpaceV, KivDrwKinds::SheetLength);

    KivFormRow graduation = grid.Row("labelGridGraduation");
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
    rotation.Row("labelRotSnapAngle")
        .Spinner("spinnerRotSnapAngle", _rotationSnapAngle, KivDrwKinds::SnapAngle);
    rotation.Row().Check("checkRotSnapAuto", _rotationAutoSnap);
}

void Kiv2DBaseOptGalFrm::BuildColor()
{
    KivFormGroup color = Group("frameColor", "I_ColorChooser");
    KivFormRow sheet = color.Row("labelBackgroundColor");
    sheet.Color("comboBackgroundColor", _sheetColor);
    sheet.Check("checkGraduatedColor", _sheetColorGrad);
    KivFormRow detail = color.Row("labelBackgroundColorDD");
    detail.Color("comboBackgroundColorDD", _detailColor);
    detail.Check("checkGraduatedColorDD", _detailColorGrad);
}

void Kiv2DBaseOptGalFrm::Build2DAxis()
{
    KivFormGroup axis = Group("frameViewReferential", "I_DisplayViewReferential");
    axis.Row().Check("checkViewReferential", _2DAxisDisplay);
    axis.Row().Check("checkViewRefZoom", _2DAxisZoom);
    axis.Row("labelViewAxisSize").Spinner("spinnerViewAxisSize", _2DAxisLength, KivDrwKinds::SheetLength);
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

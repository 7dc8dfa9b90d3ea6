#include "Kiv2DBaseOptGalFrm.h"

#include "KivMeasureSetups.h"

namespace {

constexpr KivSpinnerSetup kLength = KivMillimeters(5.0);
constexpr KivCountSetup kGraduation{.minimum = 1.0F, .maximum = 100000.0F, .values = 100000};
// Stored in degrees, shown in radians: 1 to 355 degrees by 1. The ceiling of 355 is deliberate.
constexpr KivSpinnerSetup kSnapAngle{.magnitude = KivDlgMagnitudeAngle,
                                     .minimum = 0.017453292519943393,
                                     .maximum = 6.1959188445799045,
                                     .step = 0.017453292519943393,
                                     .shownPerStored = 0.017453292519943393,
                                     .storedPerShown = 57.295779513082,
                                     .initial = 1.0};

} // namespace

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
    spacing.Spinner("editorGridSpacing", _primSpaceH, kLength, [this] { MirrorSpacing(); });
    _spacingV = spacing.Spinner("editorGridSpacingV", _primSpaceV, kLength);

    KivFormLine graduation = grid.Line("labelGridGraduation");
    graduation.Spinner("editorGridGraduation", _gradH, kGraduation, [this] { MirrorGraduation(); });
    _graduationV = graduation.Spinner("editorGridGraduationV", _gradV, kGraduation);

    // The vertical grid has a spacing and a graduation of its own only while distortions are allowed.
    _rules.AvailableWhile([this] { return _allowDistortions.cached != 0; },
                          {_spacingV.Get(), _graduationV.Get()});
}

void Kiv2DBaseOptGalFrm::BuildRotation()
{
    KivFormGroup rotation = Group("frameRotation", "I_Rotate");
    rotation.Line("labelRotSnapAngle").Spinner("spinnerRotSnapAngle", _rotationSnapAngle, kSnapAngle);
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
    axis.Line("labelViewAxisSize").Spinner("spinnerViewAxisSize", _2DAxisLength, kLength);
}

// Without distortions the vertical grid follows the horizontal one; the spinner's notification stores it.
void Kiv2DBaseOptGalFrm::MirrorSpacing()
{
    if (!_allowDistortions.cached && _spacingV)
        _spacingV->SetValue(_primSpaceH.cached * kLength.shownPerStored, 1);
}

void Kiv2DBaseOptGalFrm::MirrorGraduation()
{
    if (!_allowDistortions.cached && _graduationV)
        _graduationV->SetCurrentValue(static_cast<float>(_gradH.cached), 1);
}

#include "Pages/KivDrwOptTrelFrm.h"

namespace {

constexpr int kStyleWidth = 15; // characters

} // namespace

void KivDrwOptTrelFrm::Build()
{
    Group("frameGeom", "I_CircleCtrRad").Row().Check("_checkCenterEndPoints", _createCenterEndPts);
    Group("frameConvertDimensionAsGraphic", "I_Dim2D")
        .Row()
        .Check("checkConvertDimensionAsGraphic", _convertDimensionAsGraphic);
    KivFormGroup explode = Group("frameExplode", "I_DrwDitto");
    explode.Row().Check("chkExplodeDitto", _explodeDitto);
    explode.Row().Check("chkExplodeSymbolo", _explodeSymbolo);
    Group("frameBlinkRed", "").Row().Check("checkBlinkRed", _blinkRedValue);
    KivDrwLockCombo* style = Group("frameGVSXml", "").Row("lbl").Names("chkGVSXml", _gvsXml, &GetGPSList);
    if (style->GetCombo()) style->GetCombo()->SetVisibleTextWidth(kStyleWidth);
    // Nobody chooses a generative view style while the administrator prevents such styles.
    _rules.AvailableWhile([this] { return KivDrwRead(_repository, KivDrwKeys::DrwPreventGVS) == 0; },
                          {style});
}

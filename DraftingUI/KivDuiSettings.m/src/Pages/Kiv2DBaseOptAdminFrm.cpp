#include "Pages/Kiv2DBaseOptAdminFrm.h"

#include "KivDrwKinds.h"

void Kiv2DBaseOptAdminFrm::Build()
{
    BuildDrawingManagement();
    BuildStyles();
    Group("toolGVS", "").Line().Check("chkPreventGVS", _prevGenViewStyle);
    Group("toolDress", "").Line().Check("checkDimDriving3D", _prevDimDriving3DCstr);
}

void Kiv2DBaseOptAdminFrm::BuildDrawingManagement()
{
    KivFormGroup drawings = Group("toolDrwMng", "I_DrwDrawing");
    drawings.Line().Label("lblPre");
    drawings.Line().Check("checkOnlyFileNewFrom", _prevFileNew);
    drawings.Line().Check("checkSwitchStandard", _prevSwitchStd);
    drawings.Line().Check("checkUpdateStandard", _prevUpdateStd);
    drawings.Line().Check("checkBackgroundView", _prevBackgroundAccess);
}

void Kiv2DBaseOptAdminFrm::BuildStyles()
{
    KivFormGroup styles = Group("toolDrwStyle", "");
    styles.Line().Check("chkStyleCreation", _useStyleCreateObjects);
    styles.Line().Label("lbl");
    styles.Radios("frmRadio", _createNewSheetFrom, KivDrwKinds::SheetFormat);
    styles.Line().Label("lblInv");
    styles.Line().Check("checkOnlyUserDefault", _lockUserDefault);
    // Its name says the opposite of its setting, deliberately: the value is shown as it is.
    styles.Line().Check("checkAllowUserDefault", _prevSetAsDefault);
    styles.Line().Check("chkReset", _displayResetButton);
}

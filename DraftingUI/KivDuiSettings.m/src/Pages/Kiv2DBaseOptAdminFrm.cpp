#include "Pages/Kiv2DBaseOptAdminFrm.h"

#include "KivDrwKinds.h"

void Kiv2DBaseOptAdminFrm::Build()
{
    BuildDrawingManagement();
    BuildStyles();
    Group("toolGVS", "").Row().Check("chkPreventGVS", _prevGenViewStyle);
    Group("toolDress", "").Row().Check("checkDimDriving3D", _prevDimDriving3DCstr);
}

void Kiv2DBaseOptAdminFrm::BuildDrawingManagement()
{
    KivFormGroup drawings = Group("toolDrwMng", "I_DrwDrawing");
    drawings.Row().Label("lblPre");
    drawings.Row().Check("checkOnlyFileNewFrom", _prevFileNew);
    drawings.Row().Check("checkSwitchStandard", _prevSwitchStd);
    drawings.Row().Check("checkUpdateStandard", _prevUpdateStd);
    drawings.Row().Check("checkBackgroundView", _prevBackgroundAccess);
}

void Kiv2DBaseOptAdminFrm::BuildStyles()
{
    KivFormGroup styles = Group("toolDrwStyle", "");
    styles.Row().Check("chkStyleCreation", _useStyleCreateObjects);
    styles.Row().Label("lbl");
    styles.Radios("frmRadio", _createNewSheetFrom, KivDrwKinds::SheetFormat);
    styles.Row().Label("lblInv");
    styles.Row().Check("checkOnlyUserDefault", _lockUserDefault);
    // Its name says the opposite of its setting, deliberately: the value is shown as it is.
    styles.Row().Check("checkAllowUserDefault", _prevSetAsDefault);
    styles.Row().Check("chkReset", _displayResetButton);
}

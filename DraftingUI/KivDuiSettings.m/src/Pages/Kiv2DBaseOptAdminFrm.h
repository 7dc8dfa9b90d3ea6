#pragma once

#include "Form/KivPageFrame.h"
#include "Form/KivPageSetting.h"

// The Administration page: what users of the workbench may do, and what new sheets and objects start from.
// Knows no store: a frame derived from it binds the accessors.
class Kiv2DBaseOptAdminFrm : public KivClass<Kiv2DBaseOptAdminFrm, KivPageFrame> {
    using Self = Kiv2DBaseOptAdminFrm;

public:
    static constexpr const char* Name = "Kiv2DBaseOptAdminFrm";
    Kiv2DBaseOptAdminFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name, "KivDrwOptAdmin")
    {}

    void Build() override;

    KIV_PAGE_SETTING(unsigned char, _prevFileNew, SetPrevFileNew, GetPrevFileNew, GetPrevFileNewInfo)
    KIV_PAGE_SETTING(unsigned char, _prevSwitchStd, SetPrevSwitchStd, GetPrevSwitchStd, GetPrevSwitchStdInfo)
    KIV_PAGE_SETTING(unsigned char, _prevUpdateStd, SetPrevUpdateStd, GetPrevUpdateStd, GetPrevUpdateStdInfo)
    KIV_PAGE_SETTING(unsigned char, _prevBackgroundAccess, SetPrevBackgroundAccess, GetPrevBackgroundAccess,
                     GetPrevBackgroundAccessInfo)
    KIV_PAGE_SETTING(unsigned char, _useStyleCreateObjects, SetUseStyleCreateObjects,
                     GetUseStyleCreateObjects, GetUseStyleCreateObjectsInfo)
    KIV_PAGE_SETTING(unsigned char, _lockUserDefault, SetLockUserDefault, GetLockUserDefault,
                     GetLockUserDefaultInfo)
    KIV_PAGE_SETTING(unsigned char, _prevSetAsDefault, SetPrevSetAsDefault, GetPrevSetAsDefault,
                     GetPrevSetAsDefaultInfo)
    KIV_PAGE_SETTING(unsigned char, _displayResetButton, SetDisplayResetButton, GetDisplayResetButton,
                     GetDisplayResetButtonInfo)
    KIV_PAGE_SETTING(unsigned char, _prevGenViewStyle, SetPrevGenViewStyle, GetPrevGenViewStyle,
                     GetPrevGenViewStyleInfo)
    KIV_PAGE_SETTING(unsigned char, _prevDimDriving3DCstr, SetPrevDimDriving3DCstr, GetPrevDimDriving3DCstr,
                     GetPrevDimDriving3DCstrInfo)
    KIV_PAGE_SETTING(int, _createNewSheetFrom, SetCreateNewSheetFrom, GetCreateNewSheetFrom,
                     GetCreateNewSheetFromInfo)

private:
    void BuildDrawingManagement();
    void BuildStyles();
};

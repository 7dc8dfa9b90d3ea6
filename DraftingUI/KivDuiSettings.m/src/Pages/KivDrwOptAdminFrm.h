#pragma once

#include "Form/KivDrwPageAccessors.h"
#include "KivIDrwDraftingSettingAtt.h"
#include "Pages/Kiv2DBaseOptAdminFrm.h"

// The Administration page of the drafting workbench. It goes through the attributes of the settings'
// controller, not to the repository; without them it shows defaults, stores nothing and says so.
class KivDrwOptAdminFrm final : public KivClass<KivDrwOptAdminFrm, Kiv2DBaseOptAdminFrm> {
    using Base = Kiv2DBaseOptAdminFrm;

public:
    static constexpr const char* Name = "KivDrwOptAdminFrm";
    KivDrwOptAdminFrm(KivDialog* parent, const KivString& name);

    KIV_BIND_ATTRIBUTE(SetPrevFileNew, GetPrevFileNew, GetPrevFileNewInfo, SetPreventFileNew,
                       GetPreventFileNew, GetPreventFileNewInfo)
    KIV_BIND_ATTRIBUTE(SetPrevSwitchStd, GetPrevSwitchStd, GetPrevSwitchStdInfo, SetPreventSwitchStandard,
                       GetPreventSwitchStandard, GetPreventSwitchStandardInfo)
    KIV_BIND_ATTRIBUTE(SetPrevUpdateStd, GetPrevUpdateStd, GetPrevUpdateStdInfo, SetPreventUpdateStandard,
                       GetPreventUpdateStandard, GetPreventUpdateStandardInfo)
    KIV_BIND_ATTRIBUTE(SetPrevBackgroundAccess, GetPrevBackgroundAccess, GetPrevBackgroundAccessInfo,
                       SetPreventBackgroundAccess, GetPreventBackgroundAccess, GetPreventBackgroundAccessInfo)
    KIV_BIND_ATTRIBUTE(SetUseStyleCreateObjects, GetUseStyleCreateObjects, GetUseStyleCreateObjectsInfo,
                       SetUseStyleCreateObjects, GetUseStyleCreateObjects, GetUseStyleCreateObjectsInfo)
    KIV_BIND_ATTRIBUTE(SetLockUserDefault, GetLockUserDefault, GetLockUserDefaultInfo, SetLockUserDefault,
                       GetLockUserDefault, GetLockUserDefaultInfo)
    KIV_BIND_ATTRIBUTE(SetPrevSetAsDefault, GetPrevSetAsDefault, GetPrevSetAsDefaultInfo,
                       SetPreventSetAsDefault, GetPreventSetAsDefault, GetPreventSetAsDefaultInfo)
    KIV_BIND_ATTRIBUTE(SetDisplayResetButton, GetDisplayResetButton, GetDisplayResetButtonInfo,
                       SetDisplayResetButton, GetDisplayResetButton, GetDisplayResetButtonInfo)
    KIV_BIND_ATTRIBUTE(SetPrevGenViewStyle, GetPrevGenViewStyle, GetPrevGenViewStyleInfo,
                       SetPreventGenViewStyle, GetPreventGenViewStyle, GetPreventGenViewStyleInfo)
    KIV_BIND_ATTRIBUTE(SetPrevDimDriving3DCstr, GetPrevDimDriving3DCstr, GetPrevDimDriving3DCstrInfo,
                       SetPreventDimDriving3DCstr, GetPreventDimDriving3DCstr, GetPreventDimDriving3DCstrInfo)

    int SetCreateNewSheetFrom(const int& source) override;
    int GetCreateNewSheetFrom(int& source) override;
    int GetCreateNewSheetFromInfo(KivSettingInfo& info) override;

private:
    KivVar<KivIDrwDraftingSettingAtt> _attributes = KivDrwSettingController<KivIDrwDraftingSettingAtt>();
};

#include "Pages/KivDrwOptAdminFrm.h"

#include "Base/KivDiagnostic.h"

namespace {

constexpr const char* kFile = "DraftingUI/KivDuiSettings.m/src/KivDrwOptAdminFrm";

} // namespace

KivDrwOptAdminFrm::KivDrwOptAdminFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name)
{
    if (!_attributes) KivReportFailedAssertion("ON POINTER", "", kFile, __LINE__);
}

int KivDrwOptAdminFrm::SetCreateNewSheetFrom(const int& source)
{
    if (_attributes) _attributes->SetCreateNewSheetFrom(source);
    return S_OK;
}

int KivDrwOptAdminFrm::GetCreateNewSheetFrom(int& source)
{
    source = KivDrwAttributeDefault<&KivIDrwDraftingSettingAtt::GetCreateNewSheetFrom>::Make();
    if (!_attributes) {
        KivReportFailedAssertion("ON POINTER", Name, kFile, __LINE__);
        return S_OK;
    }
    _attributes->GetCreateNewSheetFrom(source);
    return S_OK;
}

int KivDrwOptAdminFrm::GetCreateNewSheetFromInfo(KivSettingInfo& info)
{
    if (_attributes) _attributes->GetCreateNewSheetFromInfo(info);
    return S_OK;
}

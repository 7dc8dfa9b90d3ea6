#include "KivDrwDraftingSettingCtrl.h"

#include "KivIDrwDraftingSettingAtt.h"
#include "Settings/KivIASettingController.h"

#include <iterator>
#include <vector>

namespace {

constexpr struct {
    const char* name;
    const char* key;
} kAttributes[] = {
#define KIV_ATTRIBUTE(T, attribute, Set, Get, GetInfo, settingKey) {#attribute, KivDrwKeys::settingKey.name},
#include "KivDrwDraftingAttributes.def"
};

constexpr const char* kKeys[] = {
#define KIV_ATTRIBUTE(T, attribute, Set, Get, GetInfo, settingKey) KivDrwKeys::settingKey.name,
#include "KivDrwDraftingAttributes.def"
};
constexpr int kKeyCount = static_cast<int>(std::size(kKeys));

} // namespace

HRESULT KivDrwDraftingSettingCtrl::SaveRepository()
{
    return _repository ? _repository->SaveKeys(kKeys, kKeyCount) : E_FAIL;
}

HRESULT KivDrwDraftingSettingCtrl::Rollback()
{
    return _repository ? _repository->RollbackKeys(kKeys, kKeyCount) : E_FAIL;
}

HRESULT KivDrwDraftingSettingCtrl::ResetToAdminValuesByName(const KivVariant& names)
{
    if (!_repository) return E_FAIL;
    std::vector<const char*> keys;
    for (const KivUnicodeString& name : names.texts) {
        for (const auto& attribute : kAttributes) {
            if (name == attribute.name) keys.push_back(attribute.key);
        }
    }
    return _repository->ResetToAdminValues(keys.data(), static_cast<int>(keys.size()));
}

KIV_IMPLEMENT_TIE(TIEKivIDrwDraftingSettingAttKivDrwDraftingSettingCtrl,
                  CreateTIEKivIDrwDraftingSettingAttKivDrwDraftingSettingCtrl, KivIDrwDraftingSettingAtt,
                  KivDrwDraftingSettingCtrl)
KIV_IMPLEMENT_TIE(TIEKivIASettingControllerKivDrwDraftingSettingCtrl,
                  CreateTIEKivIASettingControllerKivDrwDraftingSettingCtrl, KivIASettingController,
                  KivDrwDraftingSettingCtrl)

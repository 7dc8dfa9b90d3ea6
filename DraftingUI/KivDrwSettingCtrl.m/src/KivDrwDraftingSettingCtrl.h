#pragma once

#include "Component/KivClass.h"
#include "Component/KivVariant.h"
#include "KivDrwSettingAccess.h"

// The component "KivDrwDraftingSettingCtrl": shows eleven keys of the drafting settings as attributes
// (KivIDrwDraftingSettingAtt), and saves them, takes them back and resets them by name
// (KivIASettingController); the other keys of the repository are none of its business. Without a repository
// every operation fails.
class KivDrwDraftingSettingCtrl final : public KivClass<KivDrwDraftingSettingCtrl, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivDrwDraftingSettingCtrl";
    static constexpr const char* Framework = "DraftingUI";

#define KIV_ATTRIBUTE(T, attribute, Set, Get, GetInfo, settingKey)                                           \
    HRESULT Set(const T& value)                                                                              \
    {                                                                                                        \
        return _repository ? KivDrwSet(_repository, KivDrwKeys::settingKey, value) : E_FAIL;                 \
    }                                                                                                        \
    HRESULT Get(T& value)                                                                                    \
    {                                                                                                        \
        return _repository ? KivDrwGet(_repository, KivDrwKeys::settingKey, value) : E_FAIL;                 \
    }                                                                                                        \
    HRESULT GetInfo(KivSettingInfo& info)                                                                    \
    {                                                                                                        \
        return _repository ? KivDrwGetInfo(_repository, KivDrwKeys::settingKey, info) : E_FAIL;              \
    }
#include "KivDrwDraftingAttributes.def"

    HRESULT SaveRepository();
    HRESULT Rollback();
    HRESULT ResetToAdminValuesByName(const KivVariant& names);

private:
    KivSettingRepository* _repository = KivDrwRepository();
};

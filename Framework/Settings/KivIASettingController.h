#pragma once

#include "Component/KivClass.h"
#include "Component/KivTie.h"
#include "Component/KivVariant.h"

inline constexpr IID IID_KivIASettingController = KivMakeIID("KivIASettingController");

// Drives the settings of one controller component as automation does: by the names of its attributes.
class KivIASettingController : public KivClass<KivIASettingController, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivIASettingController";
    static constexpr KivClassKind Kind = KivClassKind::Interface;

    // The counterparts of the repository's operations, on the controller's attributes.
    virtual HRESULT SaveRepository() = 0;
    virtual HRESULT Rollback() = 0;
    // Returns the named attributes to the administrator's values; unknown names are passed over.
    virtual HRESULT ResetToAdminValuesByName(const KivVariant& names) = 0;

    template <class Implementation> class Forwarder : public KivTie<KivIASettingController, Implementation> {
    public:
        using KivTie<KivIASettingController, Implementation>::KivTie;
        HRESULT SaveRepository() override { return this->Impl() ? this->Impl()->SaveRepository() : E_FAIL; }
        HRESULT Rollback() override { return this->Impl() ? this->Impl()->Rollback() : E_FAIL; }
        HRESULT ResetToAdminValuesByName(const KivVariant& names) override
        {
            return this->Impl() ? this->Impl()->ResetToAdminValuesByName(names) : E_FAIL;
        }
    };
};

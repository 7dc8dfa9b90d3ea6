#pragma once

#include "Component/KivTie.h"

inline constexpr IID IID_KivIDrwDraftingSettingAtt = KivMakeIID("KivIDrwDraftingSettingAtt");

// The attributes of the component "KivDrwDraftingSettingCtrl" that an editor reads. Each answers S_OK and
// delivers 0 or 1, or fails and leaves the variable untouched.
class KivIDrwDraftingSettingAtt : public KivClass<KivIDrwDraftingSettingAtt, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivIDrwDraftingSettingAtt";
    static constexpr const char* Framework = "DraftingUI";
    static constexpr KivClassKind Kind = KivClassKind::Interface;

    virtual HRESULT GetLockUserDefault(unsigned char& locked) = 0;
    virtual HRESULT GetPreventSetAsDefault(unsigned char& prevented) = 0;
    virtual HRESULT GetPreventBackgroundAccess(unsigned char& prevented) = 0;

    template <class Implementation> class Forwarder
        : public KivTie<KivIDrwDraftingSettingAtt, Implementation> {
    public:
        using KivTie<KivIDrwDraftingSettingAtt, Implementation>::KivTie;
        HRESULT GetLockUserDefault(unsigned char& locked) override
        {
            return this->Impl() ? this->Impl()->GetLockUserDefault(locked) : E_FAIL;
        }
        HRESULT GetPreventSetAsDefault(unsigned char& prevented) override
        {
            return this->Impl() ? this->Impl()->GetPreventSetAsDefault(prevented) : E_FAIL;
        }
        HRESULT GetPreventBackgroundAccess(unsigned char& prevented) override
        {
            return this->Impl() ? this->Impl()->GetPreventBackgroundAccess(prevented) : E_FAIL;
        }
    };
};

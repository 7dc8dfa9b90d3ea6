#pragma once

#include "Component/KivClass.h"
#include "Component/KivClassDictionary.h"
#include "Component/KivTie.h"
#include "Component/KivVar.h"
#include "Settings/KivSettingInfo.h"

inline constexpr IID IID_KivIDrwDraftingSettingAtt = KivMakeIID("KivIDrwDraftingSettingAtt");

// The attributes of the component "KivDrwDraftingSettingCtrl": the administrator's settings under the names
// by which automation knows them. A setter writes into the repository's working state, a getter delivers the
// value in force (a switch as 0 or 1, else the default), and the third operation its lock record. Each
// answers S_OK, or fails and leaves everything untouched.
class KivIDrwDraftingSettingAtt : public KivClass<KivIDrwDraftingSettingAtt, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivIDrwDraftingSettingAtt";
    static constexpr const char* Framework = "DraftingUI";
    static constexpr KivClassKind Kind = KivClassKind::Interface;

#define KIV_ATTRIBUTE(T, attribute, Set, Get, GetInfo, settingKey)                                           \
    virtual HRESULT Set(const T& value) = 0;                                                                 \
    virtual HRESULT Get(T& value) = 0;                                                                       \
    virtual HRESULT GetInfo(KivSettingInfo& info) = 0;
#include "KivDrwDraftingAttributes.def"

    template <class Implementation> class Forwarder
        : public KivTie<KivIDrwDraftingSettingAtt, Implementation> {
    public:
        using KivTie<KivIDrwDraftingSettingAtt, Implementation>::KivTie;

#define KIV_ATTRIBUTE(T, attribute, Set, Get, GetInfo, settingKey)                                           \
    HRESULT Set(const T& value) override                                                                     \
    {                                                                                                        \
        return this->Impl() ? this->Impl()->Set(value) : E_FAIL;                                             \
    }                                                                                                        \
    HRESULT Get(T& value) override                                                                           \
    {                                                                                                        \
        return this->Impl() ? this->Impl()->Get(value) : E_FAIL;                                             \
    }                                                                                                        \
    HRESULT GetInfo(KivSettingInfo& info) override                                                           \
    {                                                                                                        \
        return this->Impl() ? this->Impl()->GetInfo(info) : E_FAIL;                                          \
    }
#include "KivDrwDraftingAttributes.def"
    };
};

// A controller component of the drafting settings under one of its interfaces; empty when it cannot be had.
template <class Interface> KivVar<Interface> KivDrwSettingController()
{
    void* found = nullptr;
    KivInstantiateComponent("KivDrwDraftingSettingCtrl", Interface::ClassId(), &found);
    return KivVar<Interface>::Adopt(static_cast<Interface*>(static_cast<KivBaseUnknown*>(found)));
}

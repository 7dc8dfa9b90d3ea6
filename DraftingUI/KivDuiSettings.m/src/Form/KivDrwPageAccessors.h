#pragma once

#include "Form/KivPageSetting.h"
#include "Settings/KivDrwAttributeDefault.h"
#include "Settings/KivDrwPageWrite.h"
#include "Settings/KivDrwStoredColor.h"

// The type of the argument that a frame's Set accessor takes.
template <class Accessor> struct KivAccessorArgument;
template <class Frame, class T> struct KivAccessorArgument<int (Frame::*)(const T&)> {
    using Type = T;
};
template <auto accessor> using KivArgumentOf = typename KivAccessorArgument<decltype(accessor)>::Type;

// How an option of a drafting frame is read from a key of its _repository: two of its three accessors. The
// frame states the alias Base.
#define KIV_BIND_READING(key, SetAccessor, GetAccessor, GetInfoAccessor)                                     \
    int GetAccessor(KivArgumentOf<&Base::SetAccessor>& value) override                                       \
    {                                                                                                        \
        return KivDrwGet(_repository, key, value);                                                           \
    }                                                                                                        \
    int GetInfoAccessor(KivSettingInfo& info) override                                                       \
    {                                                                                                        \
        return KivDrwGetInfo(_repository, key, info);                                                        \
    }

// The whole accessor triple, bound to one key.
#define KIV_BIND_SETTING(key, SetAccessor, GetAccessor, GetInfoAccessor)                                     \
    int SetAccessor(const KivArgumentOf<&Base::SetAccessor>& value) override                                 \
    {                                                                                                        \
        return KivDrwChoose(_repository, key, value);                                                        \
    }                                                                                                        \
    KIV_BIND_READING(key, SetAccessor, GetAccessor, GetInfoAccessor)

// The same for a color, in whatever form it is stored.
#define KIV_BIND_COLOR(color, SetAccessor, GetAccessor, GetInfoAccessor)                                     \
    int SetAccessor(const int& r, const int& g, const int& b) override                                       \
    {                                                                                                        \
        color.Write(_repository, r, g, b);                                                                   \
        return S_OK;                                                                                         \
    }                                                                                                        \
    int GetAccessor(int& r, int& g, int& b) override                                                         \
    {                                                                                                        \
        color.Read(_repository, r, g, b);                                                                    \
        return S_OK;                                                                                         \
    }                                                                                                        \
    int GetInfoAccessor(KivSettingInfo& info) override                                                       \
    {                                                                                                        \
        color.GetInfo(_repository, info);                                                                    \
        return S_OK;                                                                                         \
    }

// The accessor triple of an attribute of the drafting settings' controller, which may be missing in
// _attributes. What cannot be read is its default.
#define KIV_BIND_ATTRIBUTE(SetAccessor, GetAccessor, GetInfoAccessor, Set, Get, GetInfo)                     \
    int SetAccessor(const KivArgumentOf<&Base::SetAccessor>& value) override                                 \
    {                                                                                                        \
        if (_attributes) _attributes->Set(value);                                                            \
        return S_OK;                                                                                         \
    }                                                                                                        \
    int GetAccessor(KivArgumentOf<&Base::SetAccessor>& value) override                                       \
    {                                                                                                        \
        value = KivDrwAttributeDefault<&KivIDrwDraftingSettingAtt::Get>::Make();                             \
        if (_attributes) _attributes->Get(value);                                                            \
        return S_OK;                                                                                         \
    }                                                                                                        \
    int GetInfoAccessor(KivSettingInfo& info) override                                                       \
    {                                                                                                        \
        if (_attributes) _attributes->GetInfo(info);                                                         \
        return S_OK;                                                                                         \
    }

// One option of a page without a generic frame: its property and its three accessors, bound to a key of
// _repository. The frame states the alias Self and derives from KivPageFrame.
#define KIV_KEY_SETTING(T, property, key, SetAccessor, GetAccessor, GetInfoAccessor)                         \
public:                                                                                                      \
    virtual int SetAccessor(const T& in)                                                                     \
    {                                                                                                        \
        return KivDrwChoose(_repository, key, in);                                                           \
    }                                                                                                        \
    virtual int GetAccessor(T& out)                                                                          \
    {                                                                                                        \
        return KivDrwGet(_repository, key, out);                                                             \
    }                                                                                                        \
    virtual int GetInfoAccessor(KivSettingInfo& info)                                                        \
    {                                                                                                        \
        return KivDrwGetInfo(_repository, key, info);                                                        \
    }                                                                                                        \
                                                                                                             \
private:                                                                                                     \
    KivAccessorProperty<Self, T> property{_properties, *this, &Self::SetAccessor, &Self::GetAccessor,        \
                                          &Self::GetInfoAccessor};

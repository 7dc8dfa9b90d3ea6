#pragma once

#include "KivDrwBackgroundColour.h"
#include "KivDrwSettingAccess.h"

// The type of the value that a frame's Set accessor takes.
template <class Accessor> struct KivAccessorValue;
template <class Frame, class T> struct KivAccessorValue<int (Frame::*)(const T&)> {
    using Type = T;
};
template <auto accessor> using KivValueOf = typename KivAccessorValue<decltype(accessor)>::Type;

// The accessor triple of a drafting frame, bound to one key of its _repository. The frame states the alias
// Base.
#define KIV_BIND_SETTING(key, SetAccessor, GetAccessor, GetInfoAccessor)                                     \
    int SetAccessor(const KivValueOf<&Base::SetAccessor>& value) override                                    \
    {                                                                                                        \
        return KivDrwSet(_repository, key, value);                                                           \
    }                                                                                                        \
    int GetAccessor(KivValueOf<&Base::SetAccessor>& value) override                                          \
    {                                                                                                        \
        return KivDrwGet(_repository, key, value);                                                           \
    }                                                                                                        \
    int GetInfoAccessor(KivSettingInfo& info) override                                                       \
    {                                                                                                        \
        return KivDrwGetInfo(_repository, key, info);                                                        \
    }

// The same for a background colour.
#define KIV_BIND_BACKGROUND(colour, SetAccessor, GetAccessor, GetInfoAccessor)                               \
    int SetAccessor(const int& r, const int& g, const int& b) override                                       \
    {                                                                                                        \
        colour.Write(_repository, r, g, b);                                                                  \
        return S_OK;                                                                                         \
    }                                                                                                        \
    int GetAccessor(int& r, int& g, int& b) override                                                         \
    {                                                                                                        \
        colour.Read(_repository, r, g, b);                                                                   \
        return S_OK;                                                                                         \
    }                                                                                                        \
    int GetInfoAccessor(KivSettingInfo& info) override                                                       \
    {                                                                                                        \
        colour.GetInfo(_repository, info);                                                                   \
        return S_OK;                                                                                         \
    }

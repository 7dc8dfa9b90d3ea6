#pragma once

#include "Form/KivPageValue.h"

// One option of a generic frame: the value that its control shows and its three accessors, which refuse until
// a derived frame binds them to a store. The frame states the alias Self and derives from KivPageFrame. Every
// name is written out and can be searched.
#define KIV_PAGE_SETTING(T, value, SetAccessor, GetAccessor, GetInfoAccessor)                                \
public:                                                                                                      \
    virtual int SetAccessor(const T&)                                                                        \
    {                                                                                                        \
        return E_FAIL;                                                                                       \
    }                                                                                                        \
    virtual int GetAccessor(T& out)                                                                          \
    {                                                                                                        \
        out = {};                                                                                            \
        return E_FAIL;                                                                                       \
    }                                                                                                        \
    virtual int GetInfoAccessor(KivSettingInfo&)                                                             \
    {                                                                                                        \
        return E_FAIL;                                                                                       \
    }                                                                                                        \
                                                                                                             \
protected:                                                                                                   \
    KivPageValue<Self, T> value{_values, *this, &Self::SetAccessor, &Self::GetAccessor,                      \
                                &Self::GetInfoAccessor};

// The same for a color, whose accessors take red, green and blue.
#define KIV_PAGE_COLOR(value, SetAccessor, GetAccessor, GetInfoAccessor)                                     \
public:                                                                                                      \
    virtual int SetAccessor(const int&, const int&, const int&)                                              \
    {                                                                                                        \
        return E_FAIL;                                                                                       \
    }                                                                                                        \
    virtual int GetAccessor(int& r, int& g, int& b)                                                          \
    {                                                                                                        \
        r = g = b = 0;                                                                                       \
        return E_FAIL;                                                                                       \
    }                                                                                                        \
    virtual int GetInfoAccessor(KivSettingInfo&)                                                             \
    {                                                                                                        \
        return E_FAIL;                                                                                       \
    }                                                                                                        \
                                                                                                             \
protected:                                                                                                   \
    KivPageValue<Self, KivPageColor> value{_values, *this, &Self::SetAccessor, &Self::GetAccessor,           \
                                           &Self::GetInfoAccessor};

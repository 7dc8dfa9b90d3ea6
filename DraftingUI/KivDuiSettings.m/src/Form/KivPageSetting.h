#pragma once

#include "Form/KivAccessorProperty.h"

// One option of a generic frame: the property that its control shows and its three accessors, which refuse
// until a derived frame binds them to a store. The frame states the alias Self and derives from KivPageFrame.
// Every name is written out and can be searched.
#define KIV_PAGE_SETTING(T, property, SetAccessor, GetAccessor, GetInfoAccessor)                             \
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
    KivAccessorProperty<Self, T> property{_properties, *this, &Self::SetAccessor, &Self::GetAccessor,        \
                                          &Self::GetInfoAccessor};

// The same for a color, whose accessors take red, green and blue.
#define KIV_PAGE_COLOR(property, SetAccessor, GetAccessor, GetInfoAccessor)                                  \
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
    KivAccessorProperty<Self, KivPageColor> property{_properties, *this, &Self::SetAccessor,                 \
                                                     &Self::GetAccessor, &Self::GetInfoAccessor};

#pragma once

#include "Form/KivProperty.h"

// How the accessors of a type are called: with the value itself, a color with its components one by one.
template <class Frame, class T> struct KivPageAccessors {
    using Set = int (Frame::*)(const T&);
    using Get = int (Frame::*)(T&);
    static void Call(Frame& frame, Set set, const T& value) { (frame.*set)(value); }
    static void Call(Frame& frame, Get get, T& value) { (frame.*get)(value); }
};
template <class Frame> struct KivPageAccessors<Frame, KivPageColor> {
    using Set = int (Frame::*)(const int&, const int&, const int&);
    using Get = int (Frame::*)(int&, int&, int&);
    static void Call(Frame& frame, Set set, const KivPageColor& c) { (frame.*set)(c.red, c.green, c.blue); }
    static void Call(Frame& frame, Get get, KivPageColor& c) { (frame.*get)(c.red, c.green, c.blue); }
};

// The property of one accessor triple of a page frame: registers with the frame's properties when it is
// constructed, so that declaration order is the order of the accessors. Belongs to the frame and calls its
// virtual accessors.
template <class Frame, class T> class KivAccessorProperty final : public KivPropertyOf<T> {
public:
    using Accessors = KivPageAccessors<Frame, T>;
    using InfoAccessor = int (Frame::*)(KivSettingInfo&);

    KivAccessorProperty(KivProperties& properties, Frame& frame, typename Accessors::Set set,
                        typename Accessors::Get get, InfoAccessor getInfo)
        : _frame(frame), _set(set), _get(get), _getInfo(getInfo)
    {
        properties.push_back(this);
    }
    void Load() override { Accessors::Call(_frame, _get, this->cached); }
    void Save() override { Accessors::Call(_frame, _set, this->cached); }
    HRESULT GetInfo(KivSettingInfo& info) const override { return (_frame.*_getInfo)(info); }

private:
    Frame& _frame;
    typename Accessors::Set _set;
    typename Accessors::Get _get;
    InfoAccessor _getInfo;
};

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

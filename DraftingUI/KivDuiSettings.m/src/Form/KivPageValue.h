#pragma once

#include "Base/KivResult.h"
#include "Settings/KivSettingInfo.h"

#include <vector>

// A value that a page caches between its accessors and its controls.
class KivBoundValue {
public:
    // Takes the value in force into the cache; what an accessor answers does not matter.
    virtual void Load() = 0;
    // Takes the default into the cache; nothing happens where only the accessors know it.
    virtual void LoadDefault() {}
    // Stores the cached value. One that is still as it was loaded was chosen by nobody.
    virtual void Save() = 0;
    // The lock record of the setting; without one it fails and leaves the record untouched.
    virtual HRESULT GetInfo(KivSettingInfo& info) const = 0;

    // The lock record, empty when there is none.
    KivSettingInfo Info() const
    {
        KivSettingInfo info;
        GetInfo(info);
        return info;
    }

protected:
    ~KivBoundValue() = default;
};

// The values of a page in the order of their accessors.
using KivBoundValues = std::vector<KivBoundValue*>;

// A value of type T, whoever's accessors it goes through; what a row of a page's form needs of it.
template <class T> class KivCachedValue : public KivBoundValue {
public:
    T cached{};

protected:
    ~KivCachedValue() = default;
};

// The components of a color setting, 0 to 255 unless something else is stored.
struct KivPageColor {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(const KivPageColor&) const = default;
};

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

// The value of one accessor triple of a page frame: registers with the frame's values when it is constructed,
// so that declaration order is the order of the accessors. Belongs to the frame and calls its virtual
// accessors.
template <class Frame, class T> class KivPageValue final : public KivCachedValue<T> {
public:
    using Accessors = KivPageAccessors<Frame, T>;
    using InfoAccessor = int (Frame::*)(KivSettingInfo&);

    KivPageValue(KivBoundValues& values, Frame& frame, typename Accessors::Set set,
                 typename Accessors::Get get, InfoAccessor getInfo)
        : _frame(frame), _set(set), _get(get), _getInfo(getInfo)
    {
        values.push_back(this);
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

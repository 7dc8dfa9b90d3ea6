#pragma once

#include "Base/KivResult.h"
#include "Settings/KivSettingInfo.h"

#include <vector>

// A setting as a page holds it: a cached value, which it loads and saves itself.
class KivProperty {
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
    ~KivProperty() = default;
};

// The properties of a page or of a window, in the order in which they are loaded and saved.
using KivProperties = std::vector<KivProperty*>;

// A property whose value is of type T, wherever it is stored: what a control of the page needs of it.
template <class T> class KivPropertyOf : public KivProperty {
public:
    T cached{};

protected:
    ~KivPropertyOf() = default;
};

// The components of a color setting, 0 to 255 unless something else is stored.
struct KivPageColor {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(const KivPageColor&) const = default;
};

#pragma once

#include "Dialog/KivDlgControl.h"
#include "Lock/KivDrwLockDialog.h"

#include <new>

// The base of lock-aware controls: passes unit, precision and magnitude on to the wrapped control. While that
// is none, or no control with a value, setters do nothing and getters answer a fixed value.
class KivDrwLockControl : public KivClass<KivDrwLockControl, KivDrwLockDialog> {
public:
    static constexpr const char* Name = "KivDrwLockControl";
    using KivClass::KivClass;

    void SetUnit(KivDlgControl::KivDlgUnit unit);
    KivDlgControl::KivDlgUnit GetUnit() const;
    void SetPrecision(int precision);
    int GetPrecision() const;
    void SetMagnitude(KivDlgControl::KivDlgMagnitude magnitude);
    KivDlgControl::KivDlgMagnitude GetMagnitude() const;

private:
    KivDlgControl* Control() const;
};

// What every concrete one has in common: it wraps a Control, made by its constructor under the row's name
// followed by "_dialog".
template <class Self, class Control> class KivDrwLockControlOf : public KivClass<Self, KivDrwLockControl> {
public:
    using KivClass<Self, KivDrwLockControl>::KivClass;

protected:
    template <class... Arguments> Control* MakeControl(const KivString& name, const Arguments&... arguments)
    {
        return new (std::nothrow) Control(this, name + "_dialog", arguments...);
    }
    // The wrapped control; null when there is none (any more).
    Control* Wrapped() const { return static_cast<Control*>(this->GetDialog()); }
};

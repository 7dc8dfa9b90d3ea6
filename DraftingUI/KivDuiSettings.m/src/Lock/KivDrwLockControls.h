#pragma once

#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgControl.h"
#include "Dialog/KivDlgEditor.h"
#include "Dialog/KivDlgSpinner.h"
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

    // The wrapped control, if it is one with a value; else null.
    KivDlgControl* GetControl() const;
};

// What every concrete one has in common: it wraps a Control, made under the row's name followed by "_dialog".
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

// The same for a Control that is made with a style alone.
template <class Self, class Control> class KivDrwLockStyledControlOf
    : public KivDrwLockControlOf<Self, Control> {
public:
    KivDrwLockStyledControlOf(KivSettingRepository* repository, const KivString& attributeName,
                              KivDialog* parent, const KivString& name, unsigned long style)
        : KivDrwLockControlOf<Self, Control>(repository, attributeName, parent, name)
    {
        this->Wrap(this->MakeControl(name, style));
    }
    KivDrwLockStyledControlOf(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                              unsigned long style)
        : KivDrwLockControlOf<Self, Control>(parent, name, info)
    {
        this->Wrap(this->MakeControl(name, style));
    }
};

// A lock-aware switch.
class KivDrwLockCheckButton : public KivDrwLockStyledControlOf<KivDrwLockCheckButton, KivDlgCheckButton> {
public:
    static constexpr const char* Name = "KivDrwLockCheckButton";
    using KivDrwLockStyledControlOf::KivDrwLockStyledControlOf;

    // KivDlgChecked or KivDlgUnchecked.
    unsigned long GetState() const;
    void SetState(unsigned long state, int notify);
    // Null without a control.
    KivNotification* GetChkBModifyNotification() const;
    KivNotification* GetChkBDoubleClickNotification() const;
};

// A lock-aware text field.
class KivDrwLockEditor : public KivDrwLockStyledControlOf<KivDrwLockEditor, KivDlgEditor> {
public:
    static constexpr const char* Name = "KivDrwLockEditor";
    using KivDrwLockStyledControlOf::KivDrwLockStyledControlOf;

    // The field itself, on which pages also subscribe; null without a control.
    KivDlgEditor* GetEditor() const { return Wrapped(); }
};

// A lock-aware number field. Without a control, readers answer 0 or null and leave their outputs untouched.
class KivDrwLockSpinner : public KivDrwLockStyledControlOf<KivDrwLockSpinner, KivDlgSpinner> {
public:
    static constexpr const char* Name = "KivDrwLockSpinner";
    using KivDrwLockStyledControlOf::KivDrwLockStyledControlOf;

    float GetCurrentValue() const;
    void SetCurrentValue(float value, int notify);
    double GetValue() const;
    void SetValue(double value, int notify);

    void GetRange(float& minimum, float& maximum, int& steps) const;
    void SetRange(float minimum, float maximum, int steps);
    void GetRange(float& minimum, float& maximum, float& step) const;
    void SetRange(float minimum, float maximum, float step);
    void GetMinMaxStep(double& minimum, double& maximum, double& step) const;
    void SetMinMaxStep(double minimum, double maximum, double step);

    const char* GetFormat() const;
    void SetFormat(const char* format);
    int GetVisibleTextWidth() const;
    void SetVisibleTextWidth(int characters);
    KivNotification* GetSpinnerModifyNotification() const;
};

#pragma once

#include "Form/KivControlBinding.h"

#include <optional>
#include <utility>

// The binding of a control that shows a value of type T.
template <class LockControl, class T> class KivTypedBinding : public KivControlBinding {
public:
    void Show() final
    {
        if (!IsAlive()) return;
        ShowValue(Typed(), _property.cached);
        _shown = Reading(Typed());
    }
    bool Read() final
    {
        if (!IsAlive()) return false;
        const std::optional<T> reading = Reading(Typed());
        const bool isNew = reading && reading != _shown;
        if (isNew) _property.cached = *reading;
        _shown = reading;
        return isNew;
    }

protected:
    KivTypedBinding(LockControl* control, KivPropertyOf<T>& property, Rule rule)
        : KivControlBinding(control, property, std::move(rule)), _property(property)
    {}

    virtual void ShowValue(LockControl& control, const T& value) = 0;
    // What the control shows; none when nothing in it is chosen.
    virtual std::optional<T> Reading(LockControl& control) = 0;

private:
    LockControl& Typed() const { return static_cast<LockControl&>(*Control()); }

    KivPropertyOf<T>& _property;
    std::optional<T> _shown; // the reading since when a change is the user's
};

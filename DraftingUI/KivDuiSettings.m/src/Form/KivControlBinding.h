#pragma once

#include "Form/KivProperty.h"
#include "Lock/KivDrwLockDialog.h"

#include <functional>
#include <optional>
#include <utility>

// Ties a control of a page, or several of one choice, to its property, both ways. The property outlives it;
// the control belongs to the dialog tree and may be gone.
class KivControlBinding {
public:
    // What a page does after the property was saved: its special rules.
    using Rule = std::function<void()>;

    virtual ~KivControlBinding() = default;

    // Lock record to padlock.
    void ShowLock();
    // Property to control.
    virtual void Show() = 0;
    // What is in force: lock, property and control.
    void ShowInForce();
    // Control to property, if it is the sender of something new: saves it, shows what is in force then, and
    // runs the rule. False when it is not the sender.
    bool Take(KivCommand* from);
    // Control to property, without saving it: true when a user has changed the control since it was shown. A
    // value that the control cannot show as it is stays as it is until then.
    virtual bool Read() = 0;
    // The same if it is the sender, and the rule; answers whether it is.
    bool ReadIfSender(const KivCommand* from);

    virtual bool IsSender(const KivCommand* from) const;
    // False once its control was destroyed.
    bool IsAlive() const { return static_cast<bool>(_control); }
    bool IsOf(const KivProperty& property) const { return &_property == &property; }
    const KivProperty& Property() const { return _property; }

protected:
    KivControlBinding(KivDrwLockDialog* control, KivProperty& property, Rule rule);

    KivDrwLockDialog* Control() const { return _control.Get(); }

private:
    KivWeakPtr<KivDrwLockDialog> _control;
    KivProperty& _property;
    Rule _rule;
};

// The binding of a control that shows a value of type T.
template <class LockControl, class T> class KivTypedBinding : public KivControlBinding {
public:
    KivTypedBinding(LockControl* control, KivPropertyOf<T>& property, Rule rule)
        : KivControlBinding(control, property, std::move(rule)), _property(property)
    {}

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
    virtual void ShowValue(LockControl& control, const T& value) = 0;
    // What the control shows; none when nothing in it is chosen.
    virtual std::optional<T> Reading(LockControl& control) = 0;

private:
    LockControl& Typed() const { return static_cast<LockControl&>(*Control()); }

    KivPropertyOf<T>& _property;
    std::optional<T> _shown; // the reading since when a change is the user's
};

#pragma once

#include "Form/KivProperty.h"
#include "Lock/KivDrwLockDialog.h"

#include <functional>
#include <optional>
#include <utility>

// One control of a page, or several of one choice, and the value behind it.
class KivPageRow {
public:
    // What a page does after this row's value was stored: its special rules.
    using Rule = std::function<void()>;

    virtual ~KivPageRow() = default;

    // Lock record to padlock.
    void ShowLock();
    // Value to control.
    virtual void Show() = 0;
    // What is in force: lock, value and control.
    void ShowInForce();
    // Control to value, if it is the sender of something new: stores it, shows what is in force then, and
    // runs the row's rule. False when it is not the sender.
    bool Take(KivCommand* from);
    // Control to value, without storing it: true when a user has changed the control since it was shown. A
    // value that the control cannot show as it is stays as it is until then.
    virtual bool Read() = 0;
    // The same if it is the sender, and the row's rule; answers whether it is.
    bool ReadIfSender(const KivCommand* from);

    virtual bool IsSender(const KivCommand* from) const;
    // False once its control was destroyed.
    bool IsAlive() const { return Control() != nullptr; }
    bool IsOf(const KivProperty& property) const { return &_property == &property; }
    const KivProperty& Property() const { return _property; }

protected:
    KivPageRow(KivProperty& property, Rule rule) : _property(property), _rule(std::move(rule)) {}

    virtual KivDrwLockDialog* Control() const = 0;

private:
    KivProperty& _property;
    Rule _rule;
};

// A row of a control that shows a value of type T. The control belongs to the dialog tree and may be gone.
template <class LockControl, class T> class KivValueRow : public KivPageRow {
public:
    void Show() final
    {
        if (!_control) return;
        ShowValue(*_control, _property.cached);
        _shown = Reading(*_control);
    }
    bool Read() final
    {
        if (!_control) return false;
        const std::optional<T> reading = Reading(*_control);
        const bool isNew = reading && reading != _shown;
        if (isNew) _property.cached = *reading;
        _shown = reading;
        return isNew;
    }

protected:
    KivValueRow(LockControl* control, KivPropertyOf<T>& property, Rule rule)
        : KivPageRow(property, std::move(rule)), _control(control), _property(property)
    {}

    virtual void ShowValue(LockControl& control, const T& value) = 0;
    // What the control shows; none when nothing in it is chosen.
    virtual std::optional<T> Reading(LockControl& control) = 0;

private:
    KivDrwLockDialog* Control() const final { return _control.Get(); }

    KivWeakPtr<LockControl> _control;
    KivPropertyOf<T>& _property;
    std::optional<T> _shown; // the reading since when a change is the user's
};

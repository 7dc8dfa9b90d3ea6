#pragma once

#include "KivDrwLockDialog.h"
#include "KivPageValue.h"

#include <functional>

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
    // Control to value, if it is the sender of something new: stores it and runs the row's rule. False when
    // it is not.
    bool Take(KivCommand* from);
    // Control to value, without storing it: whatever the control shows, or if it is the sender.
    virtual void Read() = 0;
    bool Read(const KivCommand* from);

    // False once its control was destroyed.
    bool IsAlive() const { return Control() != nullptr; }
    bool IsOf(const KivBoundValue& value) const { return &_value == &value; }
    const KivBoundValue& Value() const { return _value; }

protected:
    KivPageRow(KivBoundValue& value, Rule rule) : _value(value), _rule(std::move(rule)) {}

    virtual KivDrwLockDialog* Control() const = 0;
    virtual bool IsSender(const KivCommand* from) const;
    // Reads the value for storing; false when there is nothing to store after all.
    virtual bool ReadToStore()
    {
        Read();
        return true;
    }

private:
    KivBoundValue& _value;
    Rule _rule;
};

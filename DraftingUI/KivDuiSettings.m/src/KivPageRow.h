#pragma once

#include "KivDrwLockDialog.h"
#include "KivPageValue.h"

#include <functional>

// One control of a page and the value behind it.
class KivPageRow {
public:
    // What a page does after this row's value was stored: its special rules.
    using Rule = std::function<void()>;

    virtual ~KivPageRow() = default;

    // Lock record to padlock.
    void ShowLock();
    // Value to control.
    virtual void Show() = 0;
    // Control to value, if it is the sender: stores it and runs the row's rule. False when it is not.
    bool Take(KivCommand* from);

protected:
    KivPageRow(KivBoundValue& value, Rule rule) : _value(value), _rule(std::move(rule)) {}

    // True, and the value stored, when the control is the sender.
    virtual bool Store(KivCommand* from) = 0;
    virtual KivDrwLockDialog* Control() const = 0;

private:
    KivBoundValue& _value;
    Rule _rule;
};

#pragma once

#include "Dialog/KivDlgControl.h"

#include <vector>

// A switch with a title.
class KivDlgCheckButton : public KivClass<KivDlgCheckButton, KivDlgControl> {
public:
    static constexpr const char* Name = "KivDlgCheckButton";
    using KivClass::KivClass;

    // KivDlgChecked or KivDlgUnchecked; any other state counts as unchecked. Not zero: listeners are told.
    void SetState(unsigned long state, int notify);
    unsigned long GetState() const { return _state; }
    KivUnicodeString GetShownValue() const override;

    KivNotification* GetChkBModifyNotification() const { return &_modified; }
    KivNotification* GetChkBDoubleClickNotification() const { return &_doubleClicked; }

private:
    unsigned long _state = KivDlgUnchecked;
    mutable KivNotification _modified{"KivDlgChkBModifyNotification"};
    mutable KivNotification _doubleClicked{"KivDlgChkBDoubleClickNotification"};
};

// One of several choices that exclude each other: of the radio buttons with the same parent at most one is
// checked.
class KivDlgRadioButton : public KivClass<KivDlgRadioButton, KivDlgControl> {
public:
    static constexpr const char* Name = "KivDlgRadioButton";
    using KivClass::KivClass;

    // KivDlgChecked or KivDlgUnchecked; any other state counts as unchecked. Checking one unchecks the
    // others, silently. Not zero: listeners of this one are told.
    void SetState(unsigned long state, int notify);
    unsigned long GetState() const { return _state; }
    // Its title while it is the choice.
    KivUnicodeString GetShownValue() const override;

    // The buttons of its choice, itself included, in reading order.
    std::vector<KivDlgRadioButton*> Choices() const;

    KivNotification* GetRadBModifyNotification() const { return &_modified; }

private:
    unsigned long _state = KivDlgUnchecked;
    mutable KivNotification _modified{"KivDlgRadBModifyNotification"};
};

// A button that starts something.
class KivDlgPushButton : public KivClass<KivDlgPushButton, KivDlgControl> {
public:
    static constexpr const char* Name = "KivDlgPushButton";
    using KivClass::KivClass;

    // From now on it can be pressed whatever its page asks for: it opens settings whose locks an
    // administrator turns also while the page has no use for them.
    void LeadToLocks() { _leadsToLocks = true; }
    bool IsEnabled() const override { return _leadsToLocks || KivClass::IsEnabled(); }

    // The button was pressed.
    KivNotification* GetPushBActivateNotification() const { return &_activated; }

private:
    bool _leadsToLocks = false;
    mutable KivNotification _activated{"KivDlgPushBActivateNotification"};
};

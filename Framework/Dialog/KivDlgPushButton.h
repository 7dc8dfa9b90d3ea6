#pragma once

#include "Dialog/KivDlgControl.h"

// A button that starts something.
class KivDlgPushButton : public KivClass<KivDlgPushButton, KivDlgControl> {
public:
    static constexpr const char* Name = "KivDlgPushButton";
    using KivClass::KivClass;

    // The button was pressed.
    KivNotification* GetPushBActivateNotification() const { return &_activated; }

private:
    mutable KivNotification _activated{"KivDlgPushBActivateNotification"};
};

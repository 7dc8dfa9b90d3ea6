#pragma once

#include "Base/KivString.h"

// What a command tells its listeners: one kind of event of one control. Belongs to the one who sends it.
class KivNotification {
public:
    explicit KivNotification(const char* name) : _name(name) {}
    virtual ~KivNotification() = default;
    KivNotification(const KivNotification&) = delete;
    KivNotification& operator=(const KivNotification&) = delete;

private:
    KivString _name; // for who looks at it in a debugger
};

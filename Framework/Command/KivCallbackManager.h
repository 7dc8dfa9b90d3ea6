#pragma once

#include "Command/KivNotification.h"

#include <functional>
#include <memory>
#include <vector>

// The name of an event of the framework; compared by its text.
using KivCallbackEvent = const char*;
using KivCallbackId = unsigned int;

// Passes events on to those who asked for them. May be changed or destroyed while it dispatches.
class KivCallbackManager {
public:
    using Function = std::function<void(KivCallbackEvent event, KivNotification* notification)>;

    KivCallbackManager();
    ~KivCallbackManager();
    KivCallbackManager(const KivCallbackManager&) = delete;
    KivCallbackManager& operator=(const KivCallbackManager&) = delete;

    KivCallbackId AddCallback(KivCallbackEvent event, Function function);
    void RemoveCallback(KivCallbackId callback);

    // Calls everybody who asked for the event, in the order of asking. The notification may be null.
    void DispatchCallbacks(KivCallbackEvent event, KivNotification* notification);

private:
    struct Entries;
    std::shared_ptr<Entries> _entries;
};

#include "Command/KivCallbackManager.h"

#include <algorithm>
#include <string>
#include <utility>

struct KivCallbackManager::Entries {
    struct Entry {
        KivCallbackId id;
        std::string event;
        Function function;
    };
    std::vector<Entry> list;
    KivCallbackId last = 0;
};

KivCallbackManager::KivCallbackManager() : _entries(std::make_shared<Entries>()) {}
KivCallbackManager::~KivCallbackManager()
{
    // A dispatch that is under way holds the list too: it must find nobody left.
    _entries->list.clear();
}

KivCallbackId KivCallbackManager::AddCallback(KivCallbackEvent event, Function function)
{
    _entries->list.push_back({++_entries->last, event, std::move(function)});
    return _entries->last;
}

void KivCallbackManager::RemoveCallback(KivCallbackId callback)
{
    std::erase_if(_entries->list, [&](const Entries::Entry& entry) { return entry.id == callback; });
}

void KivCallbackManager::DispatchCallbacks(KivCallbackEvent event, KivNotification* notification)
{
    const std::shared_ptr<Entries> entries = _entries;
    const KivCallbackId last = entries->last;
    for (KivCallbackId done = 0; done < last;) {
        const auto next = std::find_if(entries->list.begin(), entries->list.end(), [&](const auto& entry) {
            return entry.id > done && entry.id <= last && entry.event == event;
        });
        if (next == entries->list.end()) return;
        done = next->id;
        const Function function = next->function;
        function(event, notification);
    }
}

#include "Settings/KivSettingListeners.h"

#include <algorithm>

KivSettingRepository::ListenerId KivSettingListeners::Add(KivSettingRepository::Listener listener)
{
    _listeners.emplace_back(++_last, std::move(listener));
    return _last;
}

void KivSettingListeners::Remove(KivSettingRepository::ListenerId id)
{
    std::erase_if(_listeners, [id](const auto& listener) { return listener.first == id; });
}

void KivSettingListeners::Tell(const KivSettingRepository::Keys& changed)
{
    if (changed.empty()) return;
    std::vector<KivSettingRepository::ListenerId> present;
    for (const auto& listener : _listeners) present.push_back(listener.first);
    for (const auto id : present) {
        const auto found = std::find_if(_listeners.begin(), _listeners.end(),
                                        [id](const auto& listener) { return listener.first == id; });
        if (found == _listeners.end() || !found->second) continue;
        const auto call = found->second; // a copy: it may remove itself
        call(changed);
    }
}

#pragma once

#include "Settings/KivSettingRepository.h"

#include <utility>
#include <vector>

// Who wants to know of changes. Listeners may be added and removed while they are called.
class KivSettingListeners {
public:
    KivSettingRepository::ListenerId Add(KivSettingRepository::Listener listener);
    void Remove(KivSettingRepository::ListenerId id);

    // Calls every listener that is there now and has not been removed by the time its turn comes.
    void Tell(const KivSettingRepository::Keys& changed);

private:
    std::vector<std::pair<KivSettingRepository::ListenerId, KivSettingRepository::Listener>> _listeners;
    KivSettingRepository::ListenerId _last = 0;
};

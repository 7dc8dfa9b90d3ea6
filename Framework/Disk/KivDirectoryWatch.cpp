#include "Disk/KivDirectoryWatch.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

std::vector<KivDirectoryWatch*>& Watches()
{
    static auto& watches = *new std::vector<KivDirectoryWatch*>;
    return watches;
}

} // namespace

KivDirectoryWatch::KivDirectoryWatch(std::function<void()> changed) : _changed(std::move(changed))
{
    Watches().push_back(this);
}

KivDirectoryWatch::~KivDirectoryWatch()
{
    std::erase(Watches(), this);
}

void KivDirectoryWatch::Ask(const KivUnicodeString& path)
{
    _path = path;
    _answer = KivAskDirectory(path);
}

void KivDirectoryWatch::Forget()
{
    _answer = {.state = KivDirectoryState::There, .isAwaited = false};
}

bool KivDirectoryWatch::Drain()
{
    bool isAwaited = false;
    // Those that are told may come and go meanwhile.
    const std::vector<KivDirectoryWatch*> watches = Watches();
    for (KivDirectoryWatch* watch : watches) {
        if (std::find(Watches().begin(), Watches().end(), watch) == Watches().end()) continue;
        if (!watch->_answer.isAwaited) continue;
        const KivDirectoryAnswer before = std::exchange(watch->_answer, KivPollDirectory(watch->_path));
        isAwaited = isAwaited || watch->_answer.isAwaited;
        if (watch->_answer.state == before.state) continue;
        // It may be destroyed in answer, and its function with it.
        const std::function<void()> changed = watch->_changed;
        changed();
    }
    return isAwaited;
}

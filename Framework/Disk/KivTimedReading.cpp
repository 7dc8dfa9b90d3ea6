#include "Disk/KivTimedReading.h"

#include "Disk/KivNearPath.h"
#include "Disk/KivTimedCall.h"

#include <map>
#include <optional>

namespace {

using Reading = KivTimedCall<KivFileContent>;

// Readers that were given up. Used by the thread of the user interface alone.
std::map<KivUnicodeString, Reading>& Stuck()
{
    static auto& stuck = *new std::map<KivUnicodeString, Reading>;
    return stuck;
}

KivFileContent Late()
{
    KivFileContent content;
    content.state = KivFileContent::State::Unreadable;
    content.reason = "the file system does not answer in time";
    return content;
}

// Whether an earlier reader of the path has still not come back.
bool IsStuck(const KivUnicodeString& path)
{
    const auto stuck = Stuck().find(path);
    if (stuck == Stuck().end()) return false;
    if (!stuck->second.IsDone()) return true;
    Stuck().erase(stuck);
    return false;
}

} // namespace

std::vector<KivFileContent> KivReadInTime(const std::vector<KivUnicodeString>& paths,
                                          std::chrono::milliseconds limit,
                                          const std::function<KivFileContent(const KivUnicodeString&)>& read)
{
    const auto until = std::chrono::steady_clock::now() + limit;
    std::vector<std::optional<Reading>> readings;
    readings.reserve(paths.size());
    for (const KivUnicodeString& path : paths) {
        readings.emplace_back();
        if (!IsStuck(path) && !KivIsNearPath(path))
            readings.back().emplace([path, read] { return read(path); });
    }

    std::vector<KivFileContent> contents;
    contents.reserve(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i) {
        auto& reading = readings[i];
        if (!reading && !Stuck().contains(paths[i])) {
            contents.push_back(read(paths[i])); // nothing to wait for, and a thread would cost more
        } else if (reading && reading->WaitUntil(until)) {
            contents.push_back(reading->Take());
        } else {
            contents.push_back(Late());
            if (reading) Stuck().insert_or_assign(paths[i], *reading);
        }
    }
    return contents;
}

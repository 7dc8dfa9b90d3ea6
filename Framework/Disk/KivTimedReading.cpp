#include "Disk/KivTimedReading.h"

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

// None when an earlier reader of the path has still not come back.
std::optional<Reading> StartUnlessStuck(const KivUnicodeString& path,
                                        const std::function<KivFileContent(const KivUnicodeString&)>& read)
{
    if (const auto stuck = Stuck().find(path); stuck != Stuck().end() && !stuck->second.IsDone())
        return std::nullopt;
    Stuck().erase(path);
    return Reading([path, read] { return read(path); });
}

} // namespace

std::vector<KivFileContent> KivReadInTime(const std::vector<KivUnicodeString>& paths,
                                          std::chrono::milliseconds limit,
                                          const std::function<KivFileContent(const KivUnicodeString&)>& read)
{
    const auto until = std::chrono::steady_clock::now() + limit;
    std::vector<std::optional<Reading>> readings;
    readings.reserve(paths.size());
    for (const KivUnicodeString& path : paths) readings.push_back(StartUnlessStuck(path, read));

    std::vector<KivFileContent> contents;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        KivFileContent content = Late();
        if (auto& reading = readings[i]) {
            if (reading->WaitUntil(until))
                content = reading->Take();
            else
                Stuck().insert_or_assign(paths[i], *reading);
        }
        contents.push_back(std::move(content));
    }
    return contents;
}

#include "Settings/KivTimedReading.h"

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

namespace {

// Shared with a reader that may outlive the one who waits.
struct Reading {
    std::mutex mutex;
    std::condition_variable done;
    bool isDone = false;
    KivFileContent content;
};

// Readers that were given up. Used by the thread of the user interface alone.
std::map<KivUnicodeString, std::shared_ptr<Reading>>& Stuck()
{
    static auto& stuck = *new std::map<KivUnicodeString, std::shared_ptr<Reading>>;
    return stuck;
}

std::shared_ptr<Reading> Start(const KivUnicodeString& path,
                               const std::function<KivFileContent(const KivUnicodeString&)>& read)
{
    auto reading = std::make_shared<Reading>();
    const auto work = [reading, path, read] {
        KivFileContent content = read(path);
        const std::lock_guard guard(reading->mutex);
        reading->content = std::move(content);
        reading->isDone = true;
        reading->done.notify_all();
    };
    try {
        std::thread(work).detach();
    } catch (const std::system_error&) {
        work(); // no thread to be had: the settings matter more than the time
    }
    return reading;
}

KivFileContent Late()
{
    KivFileContent content;
    content.state = KivFileContent::State::Unreadable;
    content.reason = "the file system does not answer in time";
    return content;
}

// Null when an earlier reader of the path has still not come back.
std::shared_ptr<Reading> StartUnlessStuck(const KivUnicodeString& path,
                                          const std::function<KivFileContent(const KivUnicodeString&)>& read)
{
    if (const auto stuck = Stuck().find(path); stuck != Stuck().end()) {
        const std::lock_guard guard(stuck->second->mutex);
        if (!stuck->second->isDone) return nullptr;
    }
    Stuck().erase(path);
    return Start(path, read);
}

} // namespace

std::vector<KivFileContent> KivReadInTime(const std::vector<KivUnicodeString>& paths,
                                          std::chrono::milliseconds limit,
                                          const std::function<KivFileContent(const KivUnicodeString&)>& read)
{
    const auto until = std::chrono::steady_clock::now() + limit;
    std::vector<std::shared_ptr<Reading>> readings;
    for (const KivUnicodeString& path : paths) readings.push_back(StartUnlessStuck(path, read));

    std::vector<KivFileContent> contents;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        KivFileContent content = Late();
        if (const auto& reading = readings[i]) {
            std::unique_lock guard(reading->mutex);
            if (reading->done.wait_until(guard, until, [&] { return reading->isDone; })) {
                content = std::move(reading->content);
            } else {
                Stuck()[paths[i]] = reading;
            }
        }
        contents.push_back(std::move(content));
    }
    return contents;
}

#pragma once

#include "Base/KivUnicodeString.h"
#include "Disk/KivTimedCall.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

// Calls that are made for each of some paths, any of which may lie on a share that does not answer. They run
// side by side, some dozens at once. One that is not done in time is left to itself, and no second one is
// made for its path until it comes back. To be used from one thread.
template <class T> class KivTimedCalls {
public:
    using Call = std::function<T(const KivUnicodeString& path)>;

    // What the calls answered that were done in time, each at its path's index.
    std::vector<std::optional<T>> Make(const std::vector<KivUnicodeString>& paths, const Call& call,
                                       std::chrono::milliseconds limit)
    {
        std::vector<KivUnicodeString> wanted;
        std::vector<std::size_t> indices; // of those, among the paths
        for (std::size_t index = 0; index < paths.size(); ++index) {
            if (IsStuck(paths[index])) continue;
            wanted.push_back(paths[index]);
            indices.push_back(index);
        }
        const auto round = std::make_shared<Round>(std::move(wanted), call);
        const std::size_t begun = Wait(round, std::chrono::steady_clock::now() + limit);
        std::vector<std::optional<T>> answers(paths.size());
        for (std::size_t at = 0; at < begun; ++at) {
            answers[indices[at]] = round->Take(at);
            if (!answers[indices[at]]) _stuck.insert_or_assign(paths[indices[at]], Stuck{round, at});
        }
        return answers;
    }

private:
    // So many paths may keep their calls waiting before those of others have to wait, too.
    static constexpr std::size_t kMostThreads = 32;

    // Shared with threads that may outlive the one who waits.
    struct Round {
        Round(std::vector<KivUnicodeString> ofPaths, Call ofEach)
            : paths(std::move(ofPaths)), call(std::move(ofEach)), answers(paths.size())
        {}
        bool Run()
        {
            for (std::size_t at = next++; at < paths.size(); at = next++) {
                T answer = call(paths[at]);
                const std::lock_guard guard(mutex);
                answers[at] = std::move(answer);
            }
            return true;
        }
        std::optional<T> Take(std::size_t at)
        {
            const std::lock_guard guard(mutex);
            return std::exchange(answers[at], std::nullopt);
        }

        const std::vector<KivUnicodeString> paths;
        const Call call;
        std::atomic<std::size_t> next = 0; // to be begun
        std::mutex mutex;
        std::vector<std::optional<T>> answers; // of those that are done and not taken
    };
    struct Stuck {
        std::shared_ptr<Round> round;
        std::size_t at;
    };

    // How many calls were begun; from now on none is.
    static std::size_t Wait(const std::shared_ptr<Round>& round, std::chrono::steady_clock::time_point then)
    {
        std::vector<KivTimedCall<bool>> threads;
        for (std::size_t i = 0; i < std::min(round->paths.size(), kMostThreads); ++i)
            threads.emplace_back([round] { return round->Run(); });
        for (const KivTimedCall<bool>& thread : threads) thread.WaitUntil(then);
        const std::size_t begun = std::min(round->next.exchange(round->paths.size()), round->paths.size());
        for (KivTimedCall<bool>& thread : threads)
            if (thread.IsDone()) thread.Take(); // throws what a call threw
        return begun;
    }

    bool IsStuck(const KivUnicodeString& path)
    {
        const auto found = _stuck.find(path);
        if (found == _stuck.end()) return false;
        if (!found->second.round->Take(found->second.at)) return true;
        _stuck.erase(found);
        return false;
    }

    std::map<KivUnicodeString, Stuck> _stuck;
};

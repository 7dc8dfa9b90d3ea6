#include "Disk/KivFileLock.h"

#include "Disk/KivFileContent.h"
#include "Disk/KivLockQueue.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

// What the waiting thread and the one who asked share, and everybody who gave up waiting.
struct KivFileLock::Claim {
    std::mutex mutex;
    std::condition_variable decided;
    bool isWanted = true;
    std::optional<KivLockQueue::Outcome> outcome;

    void Decide(KivLockQueue::Outcome&& its)
    {
        const std::lock_guard guard(mutex);
        outcome = std::move(its);
        decided.notify_all();
    }
    // Whether somebody else may still want it.
    bool GiveUp()
    {
        const std::lock_guard guard(mutex);
        isWanted = false;
        if (!outcome) return true;
        outcome = KivLockQueue::Outcome{}; // frees the lock
        return false;
    }
    bool IsWantedAgain()
    {
        const std::lock_guard guard(mutex);
        return !isWanted && !outcome && (isWanted = true);
    }

    // One that was given up still stands in the queue: who asks again takes its place there, instead of
    // leaving one more thread behind.
    static std::map<KivUnicodeString, std::weak_ptr<Claim>>& GivenUp()
    {
        static auto& claims = *new std::map<KivUnicodeString, std::weak_ptr<Claim>>;
        return claims;
    }
};

KivFileLock::KivFileLock(const KivUnicodeString& file) : _place(std::make_shared<KivFilePlace>(file))
{
    if (const auto given = Claim::GivenUp().extract(file)) _claim = given.mapped().lock();
    if (_claim && _claim->IsWantedAgain()) return;
    _claim = std::make_shared<Claim>();
    if (!_place->IsOpen())
        _claim->Decide({{}, KivErrorMessage("the directory cannot be opened", _place->Error())});
    else
        Ask();
}

void KivFileLock::Ask()
{
    KivLockQueue queue(_place);
    if (std::optional<KivLockQueue::Outcome> outcome = queue.Try()) {
        _claim->Decide(std::move(*outcome));
        return;
    }
    try {
        std::thread([claim = _claim, rest = std::move(queue)]() mutable {
            claim->Decide(rest.Wait());
        }).detach();
    } catch (const std::system_error&) {
        _claim->Decide({{}, "another program is saving the file, and nothing is left to wait for it with"});
    }
}

KivFileLock::~KivFileLock()
{
    if (_claim->GiveUp()) Claim::GivenUp().insert_or_assign(_place->Path(), _claim);
}

bool KivFileLock::Await(std::chrono::milliseconds patience)
{
    std::unique_lock guard(_claim->mutex);
    return _claim->decided.wait_until(guard, _asked + patience,
                                      [this] { return _claim->outcome.has_value(); });
}

bool KivFileLock::IsHeld() const
{
    const std::lock_guard guard(_claim->mutex);
    const std::optional<KivLockQueue::Outcome>& outcome = _claim->outcome;
    return outcome && outcome->handle.IsOpen() && KivLockQueue::IsInPlace(*_place, outcome->handle.Get());
}

KivUnicodeString KivFileLock::Reason() const
{
    const std::lock_guard guard(_claim->mutex);
    if (!_claim->outcome) return "another program has been saving the file for too long";
    if (!_claim->outcome->handle.IsOpen()) return _claim->outcome->reason;
    return "the lock file was removed meanwhile";
}

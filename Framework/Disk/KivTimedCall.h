#pragma once

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

// A call that may not come back, as one on a share that does not answer: it runs on a thread of its own, and
// who gave it waits as long as he likes. When nobody waits any longer it is left to itself: it holds all that
// it uses, and the end of the process does not wait for it. All of this is for the thread that gives the
// call; the call itself may share nothing with it that either changes.
template <class T> class KivTimedCall {
public:
    explicit KivTimedCall(std::function<T()> call)
    {
        const auto work = [state = _state, call = std::move(call)] {
            const auto start = std::chrono::steady_clock::now();
            T result{};
            std::exception_ptr failure;
            try {
                result = call();
            } catch (...) {
                failure = std::current_exception(); // for who waits; it would end the process here
            }
            const std::lock_guard guard(state->mutex);
            state->result = std::move(result);
            state->failure = failure;
            state->took = std::chrono::steady_clock::now() - start;
            state->isDone = true;
            state->done.notify_all();
        };
        try {
            std::thread(work).detach();
        } catch (const std::system_error&) {
            work(); // no thread to be had: the answer matters more than the time
        }
    }

    bool IsDone() const
    {
        const std::lock_guard guard(_state->mutex);
        return _state->isDone;
    }
    // Waits for the end, no longer than until then. Whether it is done.
    bool WaitUntil(std::chrono::steady_clock::time_point then) const
    {
        std::unique_lock guard(_state->mutex);
        return _state->done.wait_until(guard, then, [this] { return _state->isDone; });
    }
    // Of a call that is done: how long it took, and what it answered, which is handed over, or threw.
    std::chrono::steady_clock::duration Took() const { return _state->took; }
    T Take()
    {
        if (_state->failure) std::rethrow_exception(_state->failure);
        return std::move(_state->result);
    }

private:
    // Shared with a thread that may outlive the one who waits.
    struct State {
        std::mutex mutex;
        std::condition_variable done;
        bool isDone = false;
        std::chrono::steady_clock::duration took{};
        T result{};
        std::exception_ptr failure;
    };
    std::shared_ptr<State> _state = std::make_shared<State>();
};

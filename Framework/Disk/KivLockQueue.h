#pragma once

#include "Disk/KivFilePlace.h"

#include <memory>
#include <optional>

// The way to the lock of a file: a line of those who want it, kept by the kernel in the bytes of the lock
// file. May be handed from thread to thread.
class KivLockQueue {
public:
    // The lock file, open and locked, or why it is not.
    struct Outcome {
        KivFileHandle handle;
        KivUnicodeString reason;
    };

    explicit KivLockQueue(std::shared_ptr<const KivFilePlace> place) : _place(std::move(place)) {}

    // Gets in line and goes on as far as that is possible without waiting. Nothing when somebody is ahead.
    std::optional<Outcome> Try();
    // Goes on to the end, however long that takes.
    Outcome Wait();

    // Whether this open file is still the one that the next one would lock.
    static bool IsInPlace(const KivFilePlace& place, int file);

private:
    std::optional<Outcome> Go(int command);
    bool GetInLine(int command);
    bool Advance(int command);

    std::shared_ptr<const KivFilePlace> _place;
    Outcome _opened;
    std::optional<off_t> _ahead; // the byte that is waited for, once in the line
};

#pragma once

#include "Disk/KivFilePlace.h"

#include <chrono>
#include <memory>

// Keeps other processes from saving the same file. Locked is a file of its own beside it, ".NAME.lock", which
// stays: only who may write to the directory can open it, hence hold it. The kernel frees the lock with its
// holder, so nobody waits for a dead process, and those who wait come to their turn in the order in which
// they asked. To be used from one thread; what blocks is a thread of its own.
class KivFileLock {
public:
    // Asks for the lock, and waits for nobody.
    explicit KivFileLock(const KivUnicodeString& file);
    ~KivFileLock();
    KivFileLock(const KivFileLock&) = delete;
    KivFileLock& operator=(const KivFileLock&) = delete;

    // Waits, at most until so long after it was asked for, whether it is to be had. Whether that is known.
    bool Await(std::chrono::milliseconds patience);

    // Whether it is held. False too when the lock file has been removed from under it since: another program
    // may be saving then.
    bool IsHeld() const;
    // Why it is not held.
    KivUnicodeString Reason() const;

    // Where the locked file stands.
    const KivFilePlace& Place() const { return *_place; }
    std::shared_ptr<const KivFilePlace> SharedPlace() const { return _place; } // also after the lock's end

private:
    struct Claim;

    void Ask();

    std::chrono::steady_clock::time_point _asked = std::chrono::steady_clock::now();
    std::shared_ptr<const KivFilePlace> _place;
    std::shared_ptr<Claim> _claim; // shared with the thread that waits for the kernel
};

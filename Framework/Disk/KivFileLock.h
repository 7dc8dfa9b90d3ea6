#pragma once

#include "Base/KivUnicodeString.h"
#include "Disk/KivFileHandle.h"

#include <chrono>

// Keeps other processes from saving the same file. The kernel frees the lock with its holder, so nobody waits
// for a dead process. Locked is the directory itself: that leaves nothing behind and costs no change on disk.
// Some network file systems lock only files; there a lock file beside the settings file lives as long as the
// lock. All processes meet the same file system, so all take the same way.
class KivFileLock {
public:
    // Waits for a living holder, but not longer than patience.
    KivFileLock(const KivUnicodeString& settingsFile, std::chrono::milliseconds patience);
    ~KivFileLock() { Release(); }
    KivFileLock(const KivFileLock&) = delete;
    KivFileLock& operator=(const KivFileLock&) = delete;

    bool IsHeld() const { return _handle.IsOpen(); }
    const KivUnicodeString& Reason() const { return _reason; } // why it is not held
    void Release();

private:
    // False: try again.
    bool Try();
    bool TryLockFile();

    KivUnicodeString _lockFile;
    bool _hasLockFile = false;
    KivFileHandle _handle;
    KivUnicodeString _reason;
};

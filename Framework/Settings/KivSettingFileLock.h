#pragma once

#include "Base/KivUnicodeString.h"
#include "Settings/KivFileHandle.h"

#include <chrono>

// Keeps other processes from saving the same file. The kernel frees the lock with its holder, so nobody waits
// for a dead process; the lock file beside the settings file is removed with the lock.
class KivSettingFileLock {
public:
    // Waits for a living holder, but not longer than patience.
    KivSettingFileLock(const KivUnicodeString& settingsFile, std::chrono::milliseconds patience);
    ~KivSettingFileLock() { Release(); }
    KivSettingFileLock(const KivSettingFileLock&) = delete;
    KivSettingFileLock& operator=(const KivSettingFileLock&) = delete;

    bool IsHeld() const { return _handle.IsOpen(); }
    const KivUnicodeString& Reason() const { return _reason; } // why it is not held
    void Release();

private:
    bool Try(); // false: try again

    KivUnicodeString _path;
    KivFileHandle _handle;
    KivUnicodeString _reason;
};

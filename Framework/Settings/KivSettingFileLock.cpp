#include "Settings/KivSettingFileLock.h"

#include "Settings/KivFileContent.h"
#include "Settings/KivHiddenName.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

KivSettingFileLock::KivSettingFileLock(const KivUnicodeString& settingsFile,
                                       std::chrono::milliseconds patience)
    : _path(KivHiddenName(settingsFile, ".lock"))
{
    const auto until = std::chrono::steady_clock::now() + patience;
    while (!Try()) {
        if (std::chrono::steady_clock::now() >= until) {
            _reason = "another program has been saving the file for too long";
            return;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
}

bool KivSettingFileLock::Try()
{
    // Readable for all, for an administrator's directory may be shared by several accounts.
    KivFileHandle handle(
        open(_path.ConvertToChar(), O_RDONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0644));
    if (!handle.IsOpen()) {
        _reason = KivErrorWords("the lock file cannot be made", errno);
        return true;
    }
    if (flock(handle.Get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK || errno == EINTR) return false;
        _reason = KivErrorWords("the file system cannot lock", errno);
        return true;
    }
    // The holder before may have removed the file between our opening and locking it.
    struct stat locked {
    }, named{};
    if (fstat(handle.Get(), &locked) != 0 || lstat(_path.ConvertToChar(), &named) != 0) return false;
    if (locked.st_dev != named.st_dev || locked.st_ino != named.st_ino) return false;
    _handle = std::move(handle);
    return true;
}

void KivSettingFileLock::Release()
{
    if (!_handle.IsOpen()) return;
    unlink(_path.ConvertToChar());
    KivFileHandle freed = std::move(_handle);
}

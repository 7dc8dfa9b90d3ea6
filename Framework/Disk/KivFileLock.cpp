#include "Disk/KivFileLock.h"

#include "Disk/KivFileContent.h"
#include "Disk/KivHiddenName.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

KivFileLock::KivFileLock(const KivUnicodeString& settingsFile, std::chrono::milliseconds patience)
    : _lockFile(KivHiddenName(settingsFile, ".lock"))
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

bool KivFileLock::Try()
{
    const std::string directory(KivDirectoryOf(_lockFile.View()));
    KivFileHandle handle(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!handle.IsOpen()) {
        _reason = KivErrorWords("the directory cannot be opened", errno);
        return true;
    }
    if (flock(handle.Get(), LOCK_EX | LOCK_NB) == 0) {
        _handle = std::move(handle);
        return true;
    }
    if (errno == EWOULDBLOCK || errno == EINTR) return false;
    return TryLockFile();
}

bool KivFileLock::TryLockFile()
{
    // Network locks want a file that is open for writing.
    KivFileHandle handle(
        open(_lockFile.ConvertToChar(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
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
    if (fstat(handle.Get(), &locked) != 0 || lstat(_lockFile.ConvertToChar(), &named) != 0) return false;
    if (locked.st_dev != named.st_dev || locked.st_ino != named.st_ino) return false;
    _handle = std::move(handle);
    _hasLockFile = true;
    return true;
}

void KivFileLock::Release()
{
    if (!_handle.IsOpen()) return;
    if (std::exchange(_hasLockFile, false)) unlink(_lockFile.ConvertToChar());
    const KivFileHandle freed = std::move(_handle);
}

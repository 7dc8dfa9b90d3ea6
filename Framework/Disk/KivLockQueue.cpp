#include "Disk/KivLockQueue.h"

#include "Disk/KivFileContent.h"
#include "Disk/KivFileHandle.h"

#include <fcntl.h>

namespace {

// The kernel wakes whoever waits for a lock, but somebody who comes that moment may be quicker, again and
// again. So each one who comes locks a byte of his own behind those of all who came before him, and waits for
// the one ahead of him alone. When that byte is free its owner is done, or has died while he was waiting
// himself: the lock proper is a byte that all of them come to. At the door one after the other looks for his
// place.
enum Byte : off_t { Door, Lock, Line };

constexpr int kMostAttempts = 100; // to lock a file that is not removed meanwhile

struct flock Range(off_t first, off_t length)
{
    struct flock range {};
    range.l_type = F_WRLCK;
    range.l_whence = SEEK_SET;
    range.l_start = first;
    range.l_len = length;
    return range;
}

// Of an open file, not of the process: it can be handed from thread to thread.
bool LockByte(int file, int command, off_t byte)
{
    struct flock range = Range(byte, 1);
    return KivUninterrupted([&] { return fcntl(file, command, &range); }) == 0;
}

void UnlockByte(int file, off_t byte)
{
    struct flock range = Range(byte, 1);
    range.l_type = F_UNLCK;
    fcntl(file, F_OFD_SETLK, &range);
}

// The last byte of the line that somebody has locked, or the one before the line.
off_t EndOfLine(int file)
{
    for (off_t end = Line - 1;;) {
        struct flock range = Range(end + 1, 0); // all that follow; one of them is answered
        const bool isAnswered = fcntl(file, F_OFD_GETLK, &range) == 0 && range.l_type != F_UNLCK;
        if (!isAnswered || range.l_len == 0) return end; // without an end it is none of ours
        end = range.l_start + range.l_len - 1;
    }
}

// Whoever may write to the directory may hold the lock, whoever of them made its file; nobody else.
bool IsForWritersAlone(int directory, int file)
{
    struct stat home {
    }, lock{};
    if (fstat(directory, &home) != 0 || fstat(file, &lock) != 0 || !S_ISREG(lock.st_mode)) return false;
    const bool isShared = (home.st_mode & S_IWGRP) != 0, isRoot = geteuid() == 0;
    if (lock.st_uid != geteuid() && lock.st_uid != home.st_uid && lock.st_uid != 0 && !isShared) return false;
    const mode_t permissions = isShared ? 0660 : 0600;
    const bool isOwners = !isRoot || lock.st_uid == home.st_uid;
    const bool isGroups = !isShared || lock.st_gid == home.st_gid;
    if (isOwners && isGroups && (lock.st_mode & 07777) == permissions) return true;
    // It was made just now, or somebody has changed it.
    const bool isGiven = fchown(file, isRoot ? home.st_uid : static_cast<uid_t>(-1),
                                isShared ? home.st_gid : static_cast<gid_t>(-1)) == 0;
    const mode_t allowed = isGiven || isGroups ? permissions : 0600;
    return fchmod(file, allowed) == 0 || (lock.st_mode & 07777 & ~allowed) == 0;
}

KivUnicodeString NameOfLock(const KivFilePlace& place)
{
    return place.Hidden(".lock");
}

KivLockQueue::Outcome OpenLockFile(const KivFilePlace& place)
{
    const KivUnicodeString name = NameOfLock(place);
    // Network locks want a file that is open for writing.
    constexpr int flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    KivFileHandle handle(
        KivUninterrupted([&] { return openat(place.Directory(), name.ConvertToChar(), flags, 0600); }));
    const std::string lock = "the lock file " + std::string(name.View());
    if (!handle.IsOpen()) return {{}, KivErrorMessage((lock + " cannot be opened").c_str(), errno)};
    if (!IsForWritersAlone(place.Directory(), handle.Get()))
        return {{}, KivUnicodeString(lock + " is open to others; remove it when nobody saves")};
    return {std::move(handle), {}};
}

} // namespace

bool KivLockQueue::IsInPlace(const KivFilePlace& place, int file)
{
    struct stat locked {
    }, named{};
    return fstat(file, &locked) == 0 &&
           fstatat(place.Directory(), NameOfLock(place).ConvertToChar(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           locked.st_dev == named.st_dev && locked.st_ino == named.st_ino;
}

std::optional<KivLockQueue::Outcome> KivLockQueue::Try()
{
    return Go(F_OFD_SETLK);
}

KivLockQueue::Outcome KivLockQueue::Wait()
{
    return std::move(*Go(F_OFD_SETLKW));
}

std::optional<KivLockQueue::Outcome> KivLockQueue::Go(int command)
{
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        if (!_opened.handle.IsOpen()) _opened = OpenLockFile(*_place);
        if (!_opened.handle.IsOpen()) return std::move(_opened);
        if (!GetInLine(command) || !Advance(command)) {
            if (command == F_OFD_SETLK && (errno == EAGAIN || errno == EACCES)) return std::nullopt;
            return Outcome{{}, KivErrorMessage("the file system cannot lock", errno)};
        }
        // Somebody may have removed the file while it was waited for; then the next one locks another.
        if (IsInPlace(*_place, _opened.handle.Get())) return std::move(_opened);
        *this = KivLockQueue(_place);
    }
    return Outcome{{}, "the lock file does not stay in its place"};
}

bool KivLockQueue::GetInLine(int command)
{
    if (_ahead) return true;
    const int file = _opened.handle.Get();
    if (!LockByte(file, command, Door)) return false;
    const off_t ahead = EndOfLine(file);
    const bool isInLine = LockByte(file, F_OFD_SETLK, ahead + 1);
    const int error = errno;
    UnlockByte(file, Door);
    errno = error;
    if (isInLine) _ahead = ahead;
    return isInLine;
}

bool KivLockQueue::Advance(int command)
{
    const int file = _opened.handle.Get();
    if (*_ahead >= Line) {
        if (!LockByte(file, command, *_ahead)) return false;
        UnlockByte(file, *_ahead);
        _ahead = Line - 1;
    }
    return LockByte(file, command, Lock);
}

#pragma once

#include "Base/KivUnicodeString.h"
#include "Disk/KivFileHandle.h"

#include <string>
#include <string_view>
#include <sys/stat.h>

// What tells one state of a file from another without reading it. Who writes a file can put its time back,
// but not the time of its last change.
struct KivFileStamp {
    dev_t device = 0;
    ino_t node = 0;
    off_t size = 0;
    timespec modified{};
    timespec changed{};

    KivFileStamp() = default;
    explicit KivFileStamp(const struct stat& status)
        : device(status.st_dev), node(status.st_ino), size(status.st_size), modified(status.st_mtim),
          changed(status.st_ctim)
    {}
    bool operator==(const KivFileStamp& other) const
    {
        return HasBytesOf(other) && IsSameTime(changed, other.changed);
    }
    // The same but for what renaming a file or changing its rights leaves behind.
    bool HasBytesOf(const KivFileStamp& other) const
    {
        return device == other.device && node == other.node && size == other.size &&
               IsSameTime(modified, other.modified);
    }

private:
    static bool IsSameTime(const timespec& left, const timespec& right)
    {
        return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
    }
};

// The bytes of a file, or why there are none.
struct KivFileContent {
    enum class State { Absent, Read, Unreadable };

    State state = State::Absent;
    bool isDirectoryAway = false; // an administrator's absent file's; what cannot be looked into is away too
    std::string text;
    KivUnicodeString reason; // of an unreadable file, a sentence without a full stop

    // Kept open by whoever means to compare stamps later: while it is, no other file can get its node.
    KivFileHandle handle;
    KivFileStamp stamp;
};

// What a text file that is read at once may have at most: each byte and each line costs memory.
inline constexpr std::size_t KivMostBytes = std::size_t{64} << 20;
inline constexpr std::size_t KivMostLines = std::size_t{1} << 20;

// Why a text must not be written, since it could not be read again; empty when nothing is against it.
KivUnicodeString KivSizeTrouble(std::string_view text);

// What to do with a link in place of a file.
enum class KivLastLink { Follow, Refuse };

// Reads a regular file of at most so many bytes and lines. One that turns out shorter or longer than it says
// is read once more; then it is unreadable: no part is taken for the whole. Never waits for the other end of
// a pipe. On any thread, several at once too.
KivFileContent KivReadFile(const KivUnicodeString& path, KivLastLink last = KivLastLink::Follow);

// "cannot be opened: Permission denied"
KivUnicodeString KivErrorMessage(const char* what, int error);

#pragma once

#include "Base/KivUnicodeString.h"
#include "Disk/KivFileHandle.h"

#include <string>
#include <sys/stat.h>

// What tells one state of a file from another without reading it.
struct KivFileStamp {
    dev_t device = 0;
    ino_t node = 0;
    off_t size = 0;
    timespec modified{};

    KivFileStamp() = default;
    explicit KivFileStamp(const struct stat& status)
        : device(status.st_dev), node(status.st_ino), size(status.st_size), modified(status.st_mtim)
    {}
    bool operator==(const KivFileStamp& other) const
    {
        return device == other.device && node == other.node && size == other.size &&
               modified.tv_sec == other.modified.tv_sec && modified.tv_nsec == other.modified.tv_nsec;
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

// Reads a regular file of at most so many bytes and lines.
// Never waits for the other end of a pipe.
KivFileContent KivReadFile(const KivUnicodeString& path);

// "cannot be opened: Permission denied"
KivUnicodeString KivErrorWords(const char* what, int error);

#pragma once

#include <atomic>

// A file system that fails on demand: this program's own open, openat, read, write, fsync and renameat come
// before the C library's.
namespace FaultyDisk {

enum class Fault {
    None,
    FlushFile,
    FlushDirectory,
    Write,
    ShortWrites,
    Rename,
    Interrupts,
    EndEarly,
    EndEarlyOnce
};

inline std::atomic<Fault> fault{Fault::None};

// Files in a directory "share" cannot be opened before this is false again: the caller waits.
inline std::atomic<bool> isShareStuck{false};
// How many have been waiting.
inline std::atomic<int> stuck{0};

} // namespace FaultyDisk

#include "FaultyDisk.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

using FaultyDisk::Fault;

namespace {

template <class Function> Function* Next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsKind(int descriptor, mode_t kind)
{
    struct stat status {};
    return fstat(descriptor, &status) == 0 && (status.st_mode & S_IFMT) == kind;
}

int Fail(int error)
{
    errno = error;
    return -1;
}

// A signal cuts every second call short.
bool IsInterrupted()
{
    static bool isInterrupted = false;
    return FaultyDisk::fault == Fault::Interrupts && (isInterrupted = !isInterrupted);
}

} // namespace

extern "C" int open(const char* path, int flags, ...)
{
    static const auto next = Next<int(const char*, int, ...)>("open");
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    if (IsInterrupted()) return Fail(EINTR);
    const bool isOnShare = std::string_view(path).find("/share/") != std::string_view::npos;
    FaultyDisk::stuck += FaultyDisk::isShareStuck && isOnShare;
    while (FaultyDisk::isShareStuck && isOnShare) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return next(path, flags, mode);
}

// What is on a share is not near.
extern "C" long syscall(long number, ...) noexcept
{
    static const auto next = Next<long(long, ...)>("syscall");
    va_list more;
    va_start(more, number);
    long given[6];
    for (long& argument : given) argument = va_arg(more, long);
    va_end(more);
    const bool isPath = number == SYS_openat2;
    if (isPath &&
        std::string_view(reinterpret_cast<const char*>(given[1])).find("/share/") != std::string_view::npos)
        return Fail(EXDEV);
    return next(number, given[0], given[1], given[2], given[3], given[4], given[5]);
}

extern "C" int openat(int directory, const char* name, int flags, ...)
{
    static const auto next = Next<int(int, const char*, int, ...)>("openat");
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return IsInterrupted() ? Fail(EINTR) : next(directory, name, flags, mode);
}

extern "C" ssize_t read(int descriptor, void* bytes, size_t count)
{
    static const auto next = Next<ssize_t(int, void*, size_t)>("read");
    const bool endsEarly = FaultyDisk::fault == Fault::EndEarly || FaultyDisk::fault == Fault::EndEarlyOnce;
    if (!endsEarly || !IsKind(descriptor, S_IFREG))
        return IsInterrupted() ? Fail(EINTR) : next(descriptor, bytes, count);
    if (FaultyDisk::fault == Fault::EndEarlyOnce) FaultyDisk::fault = Fault::None;
    return 0;
}

extern "C" ssize_t write(int descriptor, const void* bytes, size_t count)
{
    static const auto next = Next<ssize_t(int, const void*, size_t)>("write");
    if (IsInterrupted()) return Fail(EINTR);
    if (FaultyDisk::fault == Fault::Write && IsKind(descriptor, S_IFREG)) return Fail(ENOSPC);
    const bool isShort = FaultyDisk::fault == Fault::ShortWrites && IsKind(descriptor, S_IFREG);
    return next(descriptor, bytes, isShort ? std::min<size_t>(count, 3) : count);
}

extern "C" int fsync(int descriptor)
{
    static const auto next = Next<int(int)>("fsync");
    if (IsInterrupted()) return Fail(EINTR);
    const bool isFaulty = (FaultyDisk::fault == Fault::FlushFile && IsKind(descriptor, S_IFREG)) ||
                          (FaultyDisk::fault == Fault::FlushDirectory && IsKind(descriptor, S_IFDIR));
    return isFaulty ? Fail(EIO) : next(descriptor);
}

extern "C" int renameat(int fromDirectory, const char* from, int toDirectory, const char* to) noexcept
{
    static const auto next = Next<int(int, const char*, int, const char*)>("renameat");
    if (IsInterrupted()) return Fail(EINTR);
    return FaultyDisk::fault == Fault::Rename ? Fail(EIO) : next(fromDirectory, from, toDirectory, to);
}

#include "FaultPoints.h"

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

using namespace Faults;

namespace {

struct State {
    std::mutex mutex;
    Fault fault{};
    int left = 0; // calls to come until it strikes
    std::string where, recordedWhere;
    Struck struck;
    std::vector<Operation> operations;
};
State& Now()
{
    static auto& state = *new State;
    return state;
}
std::atomic<bool> isArmed{false};
std::atomic<bool> isRecording{false};
std::atomic<bool> isMemoryShort{false};

// What a descriptor or a name stands for, without any memory of its own: allocation may be what fails.
class Place {
public:
    explicit Place(const char* path) { std::snprintf(_text, sizeof _text, "%s", path); }
    explicit Place(int descriptor)
    {
        char link[32];
        std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
        const long length = isArmed || isRecording ? syscall(SYS_readlink, link, _text, sizeof _text - 1) : 0;
        _text[std::max(length, 0L)] = 0;
    }
    Place(int directory, const char* name, const char* end = "") : Place(directory)
    {
        const bool isBelow = name[0] != '/' && directory != AT_FDCWD;
        const std::size_t length = isBelow ? Text().size() : 0;
        std::snprintf(_text + length, sizeof _text - length, isBelow ? "/%s%s" : "%s%s", name, end);
    }
    std::string_view Text() const { return _text; }
    bool LiesIn(const std::string& where) const { return Text().find(where) != std::string_view::npos; }

private:
    char _text[PATH_MAX + 1];
};

bool Strikes(const Fault& fault)
{
    State& now = Now();
    return now.left <= 0 && (fault.lasts || now.left == 0);
}

// Whether the call is struck, and how. Crashes and waits here.
bool IsStruck(unsigned call, const Place& place, Effect& effect)
{
    if (!isArmed) return false;
    State& now = Now();
    std::unique_lock guard(now.mutex);
    if ((now.fault.calls & call) == 0 || !place.LiesIn(now.where)) return false;
    --now.left;
    if (!Strikes(now.fault)) return false;
    ++now.struck.times;
    now.struck.calls |= call;
    effect = now.fault.effect;
    errno = now.fault.error;
    if (effect == Effect::Crash) _exit(kCrashed);
    guard.unlock();
    while (effect == Effect::Wait && isArmed) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return effect != Effect::Wait;
}

std::string BytesOf(const Place& place)
{
    std::string bytes;
    const long descriptor = syscall(SYS_open, std::string(place.Text()).c_str(), O_RDONLY);
    char part[4096];
    for (long count; (count = syscall(SYS_read, descriptor, part, sizeof part)) > 0;)
        bytes.append(part, static_cast<std::size_t>(count));
    syscall(SYS_close, descriptor);
    return bytes;
}

void Note(Call call, const Place& place, const Place& to = Place(""))
{
    if (!isRecording) return;
    State& now = Now();
    const std::lock_guard guard(now.mutex);
    if (!place.LiesIn(now.recordedWhere)) return;
    now.operations.push_back({call, std::string(place.Text()), std::string(to.Text()),
                              call == Write ? BytesOf(place) : std::string()});
}

// The C library's own.
template <class Result, class... Arguments> Result Real(const char* name, Arguments... arguments)
{
    return reinterpret_cast<Result (*)(Arguments...)>(dlsym(RTLD_NEXT, name))(arguments...);
}

// A call that answers -1 for an error.
template <class... Arguments>
int Pass(Call call, const Place& place, const char* name, Arguments... arguments)
{
    Effect effect{};
    if (!IsStruck(call, place, effect)) return Real<int>(name, arguments...);
    const int error = errno;
    if (call == Close) Real<int>(name, arguments...); // the descriptor is gone whatever it answers
    errno = error;
    return -1;
}

template <class Bytes, class... Offset>
ssize_t Transfer(Call call, const char* name, int descriptor, Bytes* bytes, size_t count, Offset... offset)
{
    const Place place(descriptor);
    Effect effect{};
    if (IsStruck(call, place, effect)) {
        if (effect == Effect::Error) return -1;
        count = effect == Effect::End ? 0 : (count + 1) / 2;
    }
    const auto done = Real<ssize_t>(name, descriptor, bytes, count, offset...);
    if (call == Write && done > 0) Note(Write, place);
    if (effect == Effect::Torn) _exit(kCrashed);
    return done;
}

int OpenAt(int directory, const char* path, int flags, mode_t mode)
{
    const Place place(directory, path);
    const Call call = (flags & O_CREAT) != 0 ? Create : Open;
    const bool isNew = call == Create && isRecording && syscall(SYS_faccessat, directory, path, F_OK) != 0;
    const int descriptor = Pass(call, place, "openat", directory, path, flags, mode);
    if (descriptor >= 0 && isNew) Note(Create, place);
    if (descriptor >= 0 && (flags & O_TRUNC) != 0) Note(Write, place);
    return descriptor;
}

int MoveAt(int from, const char* path, int to, const char* name)
{
    const Place place(from, path);
    const int result = Pass(Rename, place, "renameat", from, path, to, name);
    if (result == 0) Note(Rename, place, Place(to, name));
    return result;
}

int RemoveAt(int directory, const char* path, int flags)
{
    const Place place(directory, path);
    const int result = Pass(Unlink, place, "unlinkat", directory, path, flags);
    if (result == 0) Note(Unlink, (flags & AT_REMOVEDIR) != 0 ? Place(directory, path, "/") : place);
    return result;
}

// Nothing waits for the real disk: what a flush is worth is what was written down.
int FlushOf(int descriptor)
{
    const Place place(descriptor);
    Effect effect{};
    if (IsStruck(Flush, place, effect)) return -1;
    Note(Flush, place);
    return 0;
}

int MakeAt(int directory, const char* path, mode_t mode)
{
    const Place place(directory, path);
    const int result = Pass(Directory, place, "mkdirat", directory, path, mode);
    if (result == 0) Note(Directory, place);
    return result;
}

} // namespace

void Faults::Arm(const Fault& fault, int at, const std::string& where)
{
    State& now = Now();
    const std::lock_guard guard(now.mutex);
    now.fault = fault;
    now.left = at;
    now.where = where;
    now.struck = {};
    isMemoryShort = (fault.calls & Memory) != 0;
    isArmed = true;
}

Struck Faults::Disarm()
{
    isArmed = false;
    return SoFar();
}

Struck Faults::SoFar()
{
    const std::lock_guard guard(Now().mutex);
    return Now().struck;
}

bool Faults::IsMemoryStruck()
{
    Effect effect{};
    return isMemoryShort && IsStruck(Memory, Place(""), effect);
}

void Faults::Record(const std::string& where)
{
    const std::lock_guard guard(Now().mutex);
    isRecording = !where.empty();
    if (!isRecording) return;
    Now().recordedWhere = where;
    Now().operations.clear();
}

std::vector<Operation> Faults::Recorded()
{
    const std::lock_guard guard(Now().mutex);
    return Now().operations;
}

// The C library's functions, by their names.
extern "C" {

int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return OpenAt(AT_FDCWD, path, flags, mode);
}
// What does not answer is not near. Under another name here, since the declared one takes any number of
// arguments, and how many were given cannot be told.
long PassSystemCall(long number, long a, long b, long c, long d, long e, long f) noexcept asm("syscall");
long PassSystemCall(long number, long a, long b, long c, long d, long e, long f) noexcept
{
    if (number == SYS_openat2 && isArmed && Now().fault.effect == Effect::Wait) {
        errno = EXDEV;
        return -1;
    }
    return Real<long>("syscall", number, a, b, c, d, e, f);
}
int openat(int directory, const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return OpenAt(directory, path, flags, mode);
}
ssize_t read(int descriptor, void* bytes, size_t count)
{
    return Transfer(Read, "read", descriptor, bytes, count);
}
ssize_t pread(int descriptor, void* bytes, size_t count, off_t offset)
{
    return Transfer(Read, "pread", descriptor, bytes, count, offset);
}
ssize_t write(int descriptor, const void* bytes, size_t count)
{
    return Transfer(Write, "write", descriptor, bytes, count);
}
ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset)
{
    return Transfer(Write, "pwrite", descriptor, bytes, count, offset);
}
int fsync(int descriptor)
{
    return FlushOf(descriptor);
}
int fdatasync(int descriptor)
{
    return FlushOf(descriptor);
}
int rename(const char* path, const char* name) noexcept
{
    return MoveAt(AT_FDCWD, path, AT_FDCWD, name);
}
int renameat(int from, const char* path, int to, const char* name) noexcept
{
    return MoveAt(from, path, to, name);
}
int unlink(const char* path) noexcept
{
    return RemoveAt(AT_FDCWD, path, 0);
}
int unlinkat(int directory, const char* path, int flags) noexcept
{
    return RemoveAt(directory, path, flags);
}
int mkdir(const char* path, mode_t mode) noexcept
{
    return MakeAt(AT_FDCWD, path, mode);
}
int mkdirat(int directory, const char* path, mode_t mode) noexcept
{
    return MakeAt(directory, path, mode);
}
int close(int descriptor)
{
    return Pass(Close, Place(descriptor), "close", descriptor);
}
int flock(int descriptor, int how) noexcept
{
    return Pass(Lock, Place(descriptor), "flock", descriptor, how);
}
int fcntl(int descriptor, int command, ...)
{
    va_list more;
    va_start(more, command);
    void* const argument = va_arg(more, void*);
    va_end(more);
    const bool isLock =
        command == F_OFD_SETLK || command == F_OFD_SETLKW || command == F_SETLK || command == F_SETLKW;
    return isLock ? Pass(Lock, Place(descriptor), "fcntl", descriptor, command, argument)
                  : Real<int>("fcntl", descriptor, command, argument);
}
int stat(const char* path, struct stat* status) noexcept
{
    return Pass(Look, Place(path), "stat", path, status);
}
int lstat(const char* path, struct stat* status) noexcept
{
    return Pass(Look, Place(path), "lstat", path, status);
}
int fstat(int descriptor, struct stat* status) noexcept
{
    return Pass(Look, Place(descriptor), "fstat", descriptor, status);
}
int fstatat(int directory, const char* path, struct stat* status, int flags) noexcept
{
    return Pass(Look, Place(directory, path), "fstatat", directory, path, status, flags);
}
int access(const char* path, int how) noexcept
{
    return Pass(Look, Place(path), "access", path, how);
}
int fchmod(int descriptor, mode_t mode) noexcept
{
    return Pass(Change, Place(descriptor), "fchmod", descriptor, mode);
}
int fchown(int descriptor, uid_t user, gid_t group) noexcept
{
    return Pass(Change, Place(descriptor), "fchown", descriptor, user, group);
}
ssize_t readlink(const char* path, char* text, size_t size) noexcept
{
    Effect effect{};
    return IsStruck(Look, Place(path), effect) ? -1 : Real<ssize_t>("readlink", path, text, size);
}

} // extern "C"

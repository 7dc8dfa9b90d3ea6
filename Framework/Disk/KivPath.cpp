#include "Disk/KivPath.h"

#include "Disk/KivFileHandle.h"

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <linux/openat2.h>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// Goes no further than the edge of the file system.
KivFileHandle Walk(int directory, const std::string& path, int flags, std::uint64_t resolve)
{
    open_how how{};
    how.flags = static_cast<std::uint64_t>(O_PATH | O_CLOEXEC | flags);
    how.resolve = RESOLVE_NO_XDEV | resolve;
    return KivFileHandle(static_cast<int>(syscall(SYS_openat2, directory, path.c_str(), &how, sizeof how)));
}

} // namespace

bool KivIsNearPath(const KivUnicodeString& path)
{
    if (!path.View().starts_with('/')) return false;
    // As far as the kernel knows the way by heart: else it might have to ask an automounter.
    const std::string directory(KivDirectoryOf(path.View()));
    const KivFileHandle parent = Walk(AT_FDCWD, directory, O_DIRECTORY, RESOLVE_CACHED);
    if (!parent.IsOpen()) return false;
    const std::string name(path.View().substr(directory.size()));
    return Walk(parent.Get(), name, O_NOFOLLOW, RESOLVE_NO_SYMLINKS).IsOpen() || errno == ENOENT;
}

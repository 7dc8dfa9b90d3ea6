#include "Disk/KivAtomicFile.h"

#include "Disk/KivHiddenName.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace {

constexpr int kNewFile = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;

bool WriteAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

int FlushDirectoryOf(const KivUnicodeString& path)
{
    const std::string directory(KivDirectoryOf(path.View()));
    const KivFileHandle handle(
        open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!handle.IsOpen()) return errno;
    return fsync(handle.Get()) == 0 ? 0 : errno;
}

} // namespace

KivAtomicFile::KivAtomicFile(const KivUnicodeString& path)
    : _path(path), _temporary(KivHiddenName(path, ".tmp"))
{}

KivAtomicFile::~KivAtomicFile()
{
    if (_isThere) unlink(_temporary.ConvertToChar());
}

bool KivAtomicFile::Fail(const char* what)
{
    _reason = KivErrorWords(what, errno);
    return false;
}

bool KivAtomicFile::Open()
{
    const char* const name = _temporary.ConvertToChar();
    int descriptor = open(name, kNewFile, 0600);
    if (descriptor < 0 && errno == EEXIST && unlink(name) == 0) descriptor = open(name, kNewFile, 0600);
    if (descriptor < 0) return Fail("the temporary file cannot be made");
    _handle = KivFileHandle(descriptor);
    _isThere = true;
    return true;
}

bool KivAtomicFile::TakeOver(mode_t permissions)
{
    struct stat old {};
    if (stat(_path.ConvertToChar(), &old) != 0) {
        return permissions == 0600 || fchmod(_handle.Get(), permissions) == 0;
    }
    // A program run with other rights must not take the file away from its owner. Where that is not allowed
    // the file at least stays usable to whoever saves it.
    if ((old.st_uid != geteuid() || old.st_gid != getegid()) &&
        fchown(_handle.Get(), old.st_uid, old.st_gid) != 0 && errno != EPERM) {
        return false;
    }
    const mode_t mode = old.st_mode & 0777;
    return mode == 0600 || fchmod(_handle.Get(), mode) == 0;
}

bool KivAtomicFile::Write(std::string_view bytes, mode_t permissions)
{
    if (!Open()) return false;
    if (!TakeOver(permissions)) return Fail("the permissions cannot be set");
    if (!WriteAll(_handle.Get(), bytes)) return Fail("the file cannot be written");
    if (fsync(_handle.Get()) != 0) return Fail("the file cannot be flushed");
    struct stat status {};
    if (fstat(_handle.Get(), &status) != 0) return Fail("the file cannot be examined");
    _stamp = KivFileStamp(status);
    return true;
}

bool KivAtomicFile::Rename()
{
    if (rename(_temporary.ConvertToChar(), _path.ConvertToChar()) != 0) {
        return Fail("the file cannot be replaced");
    }
    _isThere = false;
    return true;
}

bool KivAtomicFile::FlushDirectory()
{
    errno = FlushDirectoryOf(_path);
    return errno == 0 || Fail("the directory cannot be flushed");
}

int KivWriteNewFile(const KivUnicodeString& path, std::string_view bytes)
{
    const KivFileHandle handle(open(path.ConvertToChar(), kNewFile, 0600));
    if (!handle.IsOpen()) return errno;
    if (WriteAll(handle.Get(), bytes) && fsync(handle.Get()) == 0) return 0;
    const int error = errno;
    unlink(path.ConvertToChar());
    return error;
}

int KivMakeDirectories(const KivUnicodeString& path, mode_t permissions)
{
    if (access(path.ConvertToChar(), F_OK) == 0) return 0;
    std::string_view whole = path.View();
    while (whole.size() > 1 && whole.back() == '/') whole.remove_suffix(1);
    for (std::size_t slash = 0; slash != whole.size();) {
        slash = std::min(whole.find('/', slash + 1), whole.size());
        const KivUnicodeString part(whole.substr(0, slash));
        if (mkdir(part.ConvertToChar(), permissions) == 0) {
            // Else the settings would be lost with the directory.
            if (const int error = FlushDirectoryOf(part)) return error;
        } else if (errno != EEXIST) {
            return errno;
        }
    }
    return 0;
}

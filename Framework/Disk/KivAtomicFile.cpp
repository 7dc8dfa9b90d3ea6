#include "Disk/KivAtomicFile.h"

#include "Disk/KivFileHandle.h"

#include <algorithm>
#include <fcntl.h>

namespace {

KivFileHandle Create(const KivFilePlace& place, const KivUnicodeString& name)
{
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    return KivFileHandle(
        KivUninterrupted([&] { return openat(place.Directory(), name.ConvertToChar(), flags, 0600); }));
}

bool WriteAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = KivUninterrupted([&] { return write(descriptor, bytes.data(), bytes.size()); });
        if (count < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool Flush(int descriptor)
{
    return KivUninterrupted([&] { return fsync(descriptor); }) == 0;
}

// Else the settings would be lost with the directory. One that cannot be flushed does not stay: it would pass
// for an old one the next time.
int MakeDirectory(const KivUnicodeString& path, mode_t permissions)
{
    const KivFilePlace place(path);
    if (!place.IsOpen()) return place.Error();
    const char* const name = place.Name().ConvertToChar();
    if (mkdirat(place.Directory(), name, permissions) != 0) return errno == EEXIST ? 0 : errno;
    const int error = place.Flush();
    if (error != 0) unlinkat(place.Directory(), name, AT_REMOVEDIR);
    return error;
}

} // namespace

KivAtomicFile::KivAtomicFile(const KivFilePlace& place) : _place(place), _temporary(place.Hidden(".tmp")) {}

KivAtomicFile::~KivAtomicFile()
{
    if (_isThere) unlinkat(_place.Directory(), _temporary.ConvertToChar(), 0);
}

bool KivAtomicFile::Fail(const char* what)
{
    _reason = KivErrorMessage(what, errno);
    return false;
}

bool KivAtomicFile::Open()
{
    _handle = Create(_place, _temporary);
    if (!_handle.IsOpen() && errno == EEXIST &&
        unlinkat(_place.Directory(), _temporary.ConvertToChar(), 0) == 0)
        _handle = Create(_place, _temporary);
    if (!_handle.IsOpen()) return Fail("the temporary file cannot be made");
    _isThere = true;
    return true;
}

bool KivAtomicFile::TakeOver(mode_t permissions)
{
    struct stat old {};
    if (fstatat(_place.Directory(), _place.Name().ConvertToChar(), &old, 0) != 0) {
        if (errno != ENOENT) return false; // it may well be there, and have others
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
    if (!Flush(_handle.Get())) return Fail("the file cannot be flushed");
    struct stat status {};
    if (fstat(_handle.Get(), &status) != 0) return Fail("the file cannot be examined");
    _stamp = KivFileStamp(status);
    return true;
}

bool KivAtomicFile::Rename()
{
    const int directory = _place.Directory();
    const char *const from = _temporary.ConvertToChar(), *const to = _place.Name().ConvertToChar();
    if (KivUninterrupted([&] { return renameat(directory, from, directory, to); }) != 0)
        return Fail("the file cannot be replaced");
    _isThere = false;
    // Renaming is a change that the stamp shows; what has been written in place since then is none of ours.
    struct stat status {};
    if (fstat(_handle.Get(), &status) == 0 && KivFileStamp(status).HasBytesOf(_stamp))
        _stamp = KivFileStamp(status);
    return true;
}

bool KivAtomicFile::FlushDirectory()
{
    errno = _place.Flush();
    return errno == 0 || Fail("the directory cannot be flushed");
}

int KivWriteNewFile(const KivFilePlace& place, std::string_view ending, std::string_view bytes)
{
    KivUnicodeString name = place.Name();
    name.Append(ending);
    const KivFileHandle handle = Create(place, name);
    if (!handle.IsOpen()) return errno;
    int error = WriteAll(handle.Get(), bytes) && Flush(handle.Get()) ? 0 : errno;
    if (error == 0) error = place.Flush();
    if (error != 0) unlinkat(place.Directory(), name.ConvertToChar(), 0);
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
        if (access(part.ConvertToChar(), F_OK) == 0) continue; // those above it may not be ours to open
        if (const int error = MakeDirectory(part, permissions)) return error;
    }
    return 0;
}

#include "Disk/KivFilePlace.h"

#include "Disk/KivFileHandle.h"
#include "Disk/KivPath.h"

#include <fcntl.h>

KivFilePlace::KivFilePlace(const KivUnicodeString& path)
    : _path(path), _name(path.View().substr(KivDirectoryOf(path.View()).size()))
{
    const std::string directory(KivDirectoryOf(path.View()));
    const char* const name = directory.empty() ? "." : directory.c_str();
    _directory =
        KivFileHandle(KivUninterrupted([&] { return open(name, O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!_directory.IsOpen()) _error = errno;
}

KivUnicodeString KivFilePlace::Hidden(std::string_view ending) const
{
    return KivHiddenName(_name, ending);
}

int KivFilePlace::Flush() const
{
    return KivUninterrupted([this] { return fsync(_directory.Get()); }) == 0 ? 0 : errno;
}

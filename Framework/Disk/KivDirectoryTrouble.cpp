#include "Disk/KivDirectoryTrouble.h"

#include "Disk/KivPath.h"

#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool IsOthers(const struct stat& status)
{
    return status.st_uid != geteuid() && status.st_uid != 0;
}

KivUnicodeString Trouble(const KivUnicodeString& directory, const std::string& what)
{
    KivUnicodeString words("the directory ");
    return words.Append(directory).Append(what);
}

KivUnicodeString Belongs(const KivUnicodeString& directory, uid_t user)
{
    return Trouble(directory, " belongs to another user (number " + std::to_string(user) + ")");
}

} // namespace

KivUnicodeString KivDirectoryTrouble(const KivUnicodeString& directory, bool isAdministrators)
{
    struct stat status {};
    const KivUnicodeString path = directory.IsEmpty() ? KivUnicodeString(".") : directory;
    if (stat(path.ConvertToChar(), &status) != 0 || !S_ISDIR(status.st_mode)) return {};
    if (IsOthers(status)) return Belongs(path, status.st_uid);
    if ((status.st_mode & S_IWOTH) != 0)
        return Trouble(path, " may be written to by every user; \"chmod o-w\" on it mends that");
    const bool isOwnGroup = status.st_gid == geteuid();
    if (!isAdministrators && (status.st_mode & S_IWGRP) != 0 && !isOwnGroup)
        return Trouble(path, " may be written to by a group of users; \"chmod g-w\" on it mends that");
    return {};
}

KivUnicodeString KivMakingTrouble(const KivUnicodeString& directory)
{
    struct stat status {};
    KivUnicodeString nearest = directory;
    while (stat(nearest.ConvertToChar(), &status) != 0) {
        std::string_view above = nearest.View();
        while (above.size() > 1 && above.back() == '/') above.remove_suffix(1);
        above = KivDirectoryOf(above);
        if (above.empty()) return {};
        nearest = KivUnicodeString(above);
        if (above == "/") break;
    }
    return nearest == directory || !IsOthers(status) ? KivUnicodeString() : Belongs(nearest, status.st_uid);
}

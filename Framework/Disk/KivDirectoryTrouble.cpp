#include "Disk/KivDirectoryTrouble.h"

#include <string>
#include <sys/stat.h>
#include <unistd.h>

KivUnicodeString KivDirectoryTrouble(const KivUnicodeString& directory, bool isAdministrators)
{
    struct stat status {};
    const KivUnicodeString path = directory.IsEmpty() ? KivUnicodeString(".") : directory;
    if (stat(path.ConvertToChar(), &status) != 0 || !S_ISDIR(status.st_mode)) return {};
    const auto trouble = [&](const std::string& what) {
        KivUnicodeString words("the directory ");
        return words.Append(path).Append(what);
    };
    if (status.st_uid != geteuid() && status.st_uid != 0)
        return trouble(" belongs to another user (number " + std::to_string(status.st_uid) + ")");
    if ((status.st_mode & S_IWOTH) != 0)
        return trouble(" may be written to by every user; \"chmod o-w\" on it mends that");
    const bool isOwnGroup = status.st_gid == geteuid();
    if (!isAdministrators && (status.st_mode & S_IWGRP) != 0 && !isOwnGroup)
        return trouble(" may be written to by a group of users; \"chmod g-w\" on it mends that");
    return {};
}

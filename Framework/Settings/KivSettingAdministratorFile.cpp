#include "Settings/KivSettingAdministratorFile.h"

#include "Disk/KivLinkTarget.h"
#include "Disk/KivPath.h"

#include <cerrno>
#include <unistd.h>

namespace {

KivUnicodeString DirectoryAbove(const KivUnicodeString& path)
{
    std::string_view directory = KivDirectoryOf(path.View());
    while (directory.size() > 1 && directory.back() == '/') directory.remove_suffix(1);
    return KivUnicodeString(directory);
}

bool CanLookInto(const KivUnicodeString& directory)
{
    struct stat status {};
    return stat(directory.ConvertToChar(), &status) == 0 && S_ISDIR(status.st_mode) &&
           access(directory.ConvertToChar(), R_OK | X_OK) == 0;
}

} // namespace

KivFileContent KivReadAdministratorFile(const KivUnicodeString& path)
{
    KivFileContent content = KivReadFile(path, KivLastLink::Refuse);
    KivUnicodeString place = path;
    if (content.state == KivFileContent::State::Unreadable) { // as a link is
        KivLinkTarget target = KivFollowLinks(path, KivLinkTrust::CallerAndRoot);
        place = std::move(target.path);
        if (!target.trouble.IsEmpty())
            content.reason = std::move(target.trouble);
        else if (place != path)
            content = KivReadFile(place, KivLastLink::Refuse); // one that came since is nobody's we know
    }
    content.isDirectoryAway =
        content.state == KivFileContent::State::Absent && !CanLookInto(DirectoryAbove(place));
    return content;
}

bool KivIsKnownToBeAbsent(const KivUnicodeString& path)
{
    struct stat status {};
    if (lstat(path.ConvertToChar(), &status) == 0 || errno != ENOENT) return false;
    const KivUnicodeString directory = DirectoryAbove(path);
    return CanLookInto(directory) || (directory != path && KivIsKnownToBeAbsent(directory));
}

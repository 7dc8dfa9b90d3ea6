#include "Disk/KivLinkTarget.h"

#include "Base/KivAccount.h"
#include "Disk/KivFileContent.h"
#include "Disk/KivFileHandle.h"
#include "Disk/KivPath.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kMostLinks = 40; // as many as the system follows

// Opened without being followed, so that whose it is and where it leads are asked of one and the same link.
KivFileHandle OpenItself(const KivUnicodeString& path)
{
    return KivFileHandle(
        KivUninterrupted([&] { return open(path.ConvertToChar(), O_PATH | O_NOFOLLOW | O_CLOEXEC); }));
}

} // namespace

KivLinkTarget KivFollowLinks(const KivUnicodeString& path, KivLinkTrust trust)
{
    KivLinkTarget target{path, {}};
    struct stat found {};
    if (lstat(path.ConvertToChar(), &found) == 0 && !S_ISLNK(found.st_mode)) return target; // as a rule
    for (int links = 0; links < kMostLinks; ++links) {
        const KivFileHandle handle = OpenItself(target.path);
        if (!handle.IsOpen()) {
            if (errno != ENOENT) target.trouble = KivErrorMessage("the file cannot be opened", errno);
            return target;
        }
        struct stat status {};
        if (fstat(handle.Get(), &status) != 0) {
            target.trouble = KivErrorMessage("the file cannot be examined", errno);
            return target;
        }
        if (!S_ISLNK(status.st_mode)) return target;
        if (trust == KivLinkTrust::CallerAndRoot && status.st_uid != 0 && status.st_uid != geteuid()) {
            target.trouble = KivUnicodeString("a link of the user ") + KivAccountName(status.st_uid) +
                             " stands in place of the file; only root's and your own are followed";
            return target;
        }
        char text[PATH_MAX];
        const ssize_t length = readlinkat(handle.Get(), "", text, sizeof text);
        if (length <= 0) {
            target.trouble = KivErrorMessage("the link cannot be read", errno);
            return target;
        }
        const std::string_view next(text, static_cast<std::size_t>(length));
        target.path = next[0] == '/' ? KivUnicodeString(next)
                                     : KivUnicodeString(KivDirectoryOf(target.path.View())).Append(next);
    }
    target.trouble = KivErrorMessage("the file cannot be opened", ELOOP);
    return target;
}

#include "Disk/KivExposure.h"

#include "Base/KivAccount.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <cstring>
#include <deque>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr int kMostLinks = 40; // as many as the system follows

void PushFront(std::deque<std::string>& parts, std::string_view path)
{
    std::deque<std::string> added;
    while (!path.empty()) {
        const std::size_t slash = std::min(path.find('/'), path.size());
        const std::string_view part = path.substr(0, slash);
        if (!part.empty() && part != ".") added.emplace_back(part);
        path.remove_prefix(std::min(slash + 1, path.size()));
    }
    parts.insert(parts.begin(), added.begin(), added.end());
}

std::string Parent(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos || slash == 0 ? "/" : path.substr(0, slash);
}

// An access list as the system hands it out: a version, then the entries, least significant byte first.
struct Entry {
    enum Tag : std::uint16_t { User = 0x02, OwnGroup = 0x04, Group = 0x08, Mask = 0x10 };
    std::uint16_t tag;
    std::uint16_t rights;
    std::uint32_t id;
};
constexpr std::size_t kHeader = 4;
constexpr std::uint16_t kWrite = 2;

std::vector<Entry> ReadList(const KivUnicodeString& path)
{
    std::array<char, 1 << 16> bytes;
    const ssize_t size =
        getxattr(path.ConvertToChar(), "system.posix_acl_access", bytes.data(), bytes.size());
    std::vector<Entry> entries;
    for (std::size_t at = kHeader; size > 0 && at + sizeof(Entry) <= static_cast<std::size_t>(size);
         at += sizeof(Entry)) {
        Entry entry{};
        std::memcpy(&entry, bytes.data() + at, sizeof entry);
        entries.push_back(entry);
    }
    return entries;
}

// Who may write to a file or directory, apart from its owner and from everybody.
struct Writers {
    std::vector<uid_t> users; // by an access list
    std::vector<gid_t> groups;
};

// Reads them from the rights in the status, and from the access list if there is one.
Writers ReadWriters(const KivUnicodeString& path, const struct stat& status)
{
    Writers writers;
    // With an access list the group's bits are its mask: what it grants to anybody at most.
    if ((status.st_mode & S_IWGRP) == 0) return writers;
    const std::vector<Entry> list = ReadList(path);
    if (list.empty()) writers.groups.push_back(status.st_gid);
    for (const Entry& entry : list) {
        if ((entry.rights & kWrite) == 0) continue;
        if (entry.tag == Entry::User) writers.users.push_back(entry.id);
        if (entry.tag == Entry::Group) writers.groups.push_back(entry.id);
        if (entry.tag == Entry::OwnGroup) writers.groups.push_back(status.st_gid);
    }
    return writers;
}

// Goes down a path from the root, as the system does.
class Walk {
public:
    explicit Walk(std::string_view path) { PushFront(_ahead, path); }

    std::vector<KivExposure> Run()
    {
        Enter("/");
        while (!_ahead.empty() && Step()) {
        }
        return std::move(_found);
    }

private:
    // What is said of a path is what mends it.
    void Say(const std::string& path, const KivUnicodeString& who, const std::string& mends)
    {
        _found.push_back({KivUnicodeString(path), KivUnicodeString(who) + "; " + KivUnicodeString(mends)});
    }

    static std::string Move() { return "move it to a directory that only root may write to"; }

    // False at the end of the way.
    bool Step()
    {
        const std::string part = _ahead.front();
        _ahead.pop_front();
        if (part == "..") {
            _here = Parent(_here);
            Enter(_here);
            return true;
        }
        std::string next = (_here == "/" ? "" : _here) + "/" + part;
        struct stat status {};
        if (lstat(next.c_str(), &status) != 0) {
            if (_isShared) Say(next, "it is not there, and every user may make it", Move());
            return false;
        }
        const bool isOwnersOnly = KivIsPersonsAccount(status.st_uid);
        if (isOwnersOnly) {
            Say(next, KivUnicodeString("it belongs to the user ") + KivAccountName(status.st_uid),
                _isShared ? Move() : "\"chown root\" on it mends that");
        }
        if (S_ISLNK(status.st_mode)) return Follow(next);
        if (!isOwnersOnly) ExamineRights(next, status);
        Enter(next);
        return true;
    }

    bool Follow(const std::string& link)
    {
        char text[PATH_MAX];
        const ssize_t length = readlink(link.c_str(), text, sizeof text);
        if (length <= 0 || ++_links > kMostLinks) return false;
        const std::string_view target(text, static_cast<std::size_t>(length));
        PushFront(_ahead, target);
        if (target[0] == '/') Enter("/");
        return true;
    }

    void Enter(const std::string& directory)
    {
        _here = directory;
        struct stat status {};
        _isShared =
            lstat(directory.c_str(), &status) == 0 && IsSticky(status) && (status.st_mode & S_IWOTH) != 0;
    }

    // In such a directory only the owner of a thing replaces it: everybody's, and nobody's harm.
    static bool IsSticky(const struct stat& status)
    {
        return S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0;
    }

    void ExamineRights(const std::string& path, const struct stat& status)
    {
        if (IsSticky(status)) return;
        if ((status.st_mode & S_IWOTH) != 0)
            return Say(path, "every user may write to it", "\"chmod o-w\" on it mends that");
        const Writers writers = ReadWriters(KivUnicodeString(path), status);
        for (const gid_t group : writers.groups) {
            if (!KivIsEverydayGroup(group)) continue;
            return Say(path,
                       KivUnicodeString("the users of the group " + std::to_string(group)) +
                           " may write to it",
                       "\"chmod g-w\" on it mends that");
        }
        for (const uid_t user : writers.users) {
            if (!KivIsPersonsAccount(user)) continue;
            return Say(path, KivUnicodeString("the user ") + KivAccountName(user) + " may write to it",
                       "\"setfacl -b\" on it mends that");
        }
    }

    std::deque<std::string> _ahead; // what is left of the path
    std::string _here;              // the directory that it has led to
    bool _isShared = false;         // everybody may make something there
    int _links = 0;
    std::vector<KivExposure> _found;
};

} // namespace

std::vector<KivExposure> KivFindExposures(const KivUnicodeString& path)
{
    return Walk(path.View()).Run();
}

#include "Disk/KivFileWriters.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <sys/xattr.h>

namespace {

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

} // namespace

KivFileWriters KivReadFileWriters(const KivUnicodeString& path, const struct stat& status)
{
    KivFileWriters writers;
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

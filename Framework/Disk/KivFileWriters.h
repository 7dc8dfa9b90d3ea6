#pragma once

#include "Base/KivUnicodeString.h"

#include <sys/stat.h>
#include <vector>

// Who may write to a file or directory, apart from its owner and from everybody.
struct KivFileWriters {
    std::vector<uid_t> users; // by an access list
    std::vector<gid_t> groups;
};

// Reads them from the rights in the status, and from the access list if the place has one.
KivFileWriters KivReadFileWriters(const KivUnicodeString& path, const struct stat& status);

#pragma once

#include "Base/KivUnicodeString.h"

#include <dirent.h>
#include <memory>

struct KivDirectoryCloser {
    void operator()(DIR* stream) const { closedir(stream); }
};

// An open directory; closes itself.
struct KivDirectory {
    std::unique_ptr<DIR, KivDirectoryCloser> stream;
};

// Opens a directory for reading. 0 on success, -1 when it is none or may not be read.
int KivOpenDirectory(const KivUnicodeString& path, KivDirectory& directory);

// Delivers the name of the next entry, in the order of the file system, "." and ".." included. 0 while an
// entry was delivered, -1 at the end.
int KivReadDirectory(KivDirectory& directory, KivUnicodeString& name);

#pragma once

#include "Disk/KivFileContent.h"

// Reads a file by which an administrator binds users: through links of root and the caller alone, and saying
// of an absent one whether its directory is away, too. May be called on a thread of its own.
KivFileContent KivReadAdministratorFile(const KivUnicodeString& path);

// Whether a path is known to lead nowhere: the directory above it can be looked into and does not hold it,
// or is known to lead nowhere itself. What stands behind a broken link or a directory that cannot be looked
// into may only be out of sight.
bool KivIsKnownToBeAbsent(const KivUnicodeString& path);

#pragma once

#include "Base/KivUnicodeString.h"

// Why settings must not be taken from or written to a directory: somebody else could put a file of his own,
// or a link to one, in its place. A clause without a full stop; empty when nothing is against it, also when
// the directory is not there yet. A user's may be written to by its owner alone (a group of the user's own
// number counts as the user); an administrator's by its group too.
KivUnicodeString KivDirectoryTrouble(const KivUnicodeString& directory, bool isAdministrators);

#pragma once

#include "Base/KivUnicodeString.h"

// Why settings must not be taken from or written to a directory: somebody else could put a file of his own,
// or a link to one, in its place. A clause without a full stop; empty when nothing is against it, also when
// the directory is not there yet. A user's may be written to by its owner alone (a group of the user's own
// number counts as the user); an administrator's by its group too.
KivUnicodeString KivDirectoryTrouble(const KivUnicodeString& directory, bool isAdministrators);

// Why a directory, and those above it as far as they are missing, must not be made: where it would come to
// stand belongs to another user, who would be left with what he cannot remove. Empty when nothing is against
// it, also when the directory is there.
KivUnicodeString KivMakingTrouble(const KivUnicodeString& directory);

#pragma once

#include "Base/KivUnicodeString.h"

#include <sys/types.h>

// The home directory of the account that the program runs under, from the system's list of accounts: unlike
// the environment's, nobody who starts the program chooses it. Empty when it has none.
KivUnicodeString KivAccountHome();

// The name of an account, else its number.
KivUnicodeString KivAccountName(uid_t user);

// Whether a person works under the account; the system's own ones have numbers below 1000.
bool KivIsPersonsAccount(uid_t user);

// Whether people are in a group without anybody having chosen them: that of all users, and the one that comes
// with a person's account.
bool KivIsEverydayGroup(gid_t group);

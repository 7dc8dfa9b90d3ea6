#pragma once

#include "Base/KivUnicodeString.h"

// Whose links are followed. A link of somebody else's could lead whoever follows it anywhere.
enum class KivLinkTrust {
    Everybody,
    CallerAndRoot,
};

// Where the links at a path lead.
struct KivLinkTarget {
    KivUnicodeString path;    // whether something stands there or not; the path itself when it is no link
    KivUnicodeString trouble; // why they are not followed, a clause without a full stop; empty when they are
};

// Follows the links that stand at the path itself; those on the way to it are its directory's.
KivLinkTarget KivFollowLinks(const KivUnicodeString& path, KivLinkTrust trust);

#pragma once

#include "Base/KivUnicodeString.h"

#include <vector>

// Where people who are no administrators could change what stands at a path, or put something else there.
struct KivExposure {
    KivUnicodeString path; // the file, a directory on the way to it, or a link there
    KivUnicodeString text; // who could, and what mends it; a clause without a full stop
};

// All of them for an absolute path, whether something stands there or not, from the root down; the way
// through links included. Root, the system's own accounts and groups that were made for a purpose count as
// administrators. Asks the disk, and so may take as long as it does.
std::vector<KivExposure> KivFindExposures(const KivUnicodeString& path);

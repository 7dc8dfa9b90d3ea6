#pragma once

#include "Base/KivUnicodeString.h"

// Whether the way to an absolute path, whether something stands there or not, stays on the file system of
// "/": what does so answers at once, while another one may be a share that never does. Asking never waits for
// such a one. False where the system cannot tell. For any thread.
bool KivIsNearPath(const KivUnicodeString& path);

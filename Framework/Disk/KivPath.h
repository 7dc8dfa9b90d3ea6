#pragma once

#include "Base/KivUnicodeString.h"

// The directory of a file, with its slash; empty for a name alone.
inline std::string_view KivDirectoryOf(std::string_view path)
{
    return path.substr(0, path.rfind('/') + 1);
}

// The name of a working file beside a file: "/a/.name<ending>" for "/a/name".
inline KivUnicodeString KivHiddenName(const KivUnicodeString& path, std::string_view ending)
{
    const std::string_view directory = KivDirectoryOf(path.View());
    KivUnicodeString hidden(directory);
    return hidden.Append(".").Append(path.View().substr(directory.size())).Append(ending);
}

// Whether the way to an absolute path, whether something stands there or not, stays on the file system of
// "/": what does so answers at once, while another one may be a share that never does. Asking never waits for
// such a one. False where the system cannot tell. For any thread.
bool KivIsNearPath(const KivUnicodeString& path);

#pragma once

#include "Disk/KivFileContent.h"

#include <chrono>
#include <functional>
#include <vector>

// Reads files that may lie on a share that does not answer, side by side, some dozens at once. A file that
// has not come in time is unreadable; its reader is left to itself, and no second one is started for it until
// it comes back. For the thread of the user interface; what may lie on a share is read on threads of their
// own, which may outlive this call.
std::vector<KivFileContent> KivReadInTime(const std::vector<KivUnicodeString>& paths,
                                          std::chrono::milliseconds limit,
                                          const std::function<KivFileContent(const KivUnicodeString&)>& read);

// Whether a file could be read in time, or told to be unreadable: then whoever reads it in this thread is not
// held up by its file system. To be used like the above.
bool KivAnswersInTime(const KivUnicodeString& path, std::chrono::milliseconds limit);

#pragma once

#include "Base/KivUnicodeString.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

// What is known of a directory. Nobody waits long for one: it may lie on a share that does not answer.
enum class KivDirectoryState {
    Unknown, // its file system has not answered yet
    There,
    Missing // it does not exist, is none, or may not be read
};

struct KivDirectoryAnswer {
    KivDirectoryState state = KivDirectoryState::Unknown;
    bool isAwaited = false; // a newer one is still to come
};

// Asks for a directory and waits for the answer a fifth of a second at most; of one that was late before it
// tells what was answered the last time, without waiting, while it is asked again. One that does not answer
// is not asked twice. For the thread of the user interface, as are the others here.
KivDirectoryAnswer KivAskDirectory(const KivUnicodeString& path);
// What has come of it since then, without asking again while an answer is awaited.
KivDirectoryAnswer KivPollDirectory(const KivUnicodeString& path);

// An open directory.
struct KivDirectory {
    KivUnicodeString path;
    std::optional<std::vector<KivUnicodeString>> names; // once they have been read
    std::size_t next = 0;
};

// Opens a directory for reading. 0 on success, -1 when it is none, may not be read or does not answer in time
// (see KivAskDirectory).
int KivOpenDirectory(const KivUnicodeString& path, KivDirectory& directory);

// Delivers the name of the next entry, in the order of the file system, "." and ".." included. 0 while an
// entry was delivered, -1 at the end. The first call waits for all of them, a second at most: one that is
// late has none, until it has answered.
int KivReadDirectory(KivDirectory& directory, KivUnicodeString& name);

// What a look at a directory finds; names only when they were asked for.
struct KivDirectoryLook {
    bool isThere = false;
    std::optional<std::vector<KivUnicodeString>> names;
};
using KivDirectoryLooker = std::function<KivDirectoryLook(const KivUnicodeString& path, bool withNames)>;

// For tests: who looks at directories from now on, on a thread of its own; answers who did until then.
KivDirectoryLooker KivSetDirectoryLooker(KivDirectoryLooker looker);

#pragma once

#include "Base/KivUnicodeString.h"

#include <QString>

// The file or directory of an absolute path, or the nearest thing above it that is there. Null text when it
// lies on a share that does not answer: a thread of its own looks, and is waited for a fifth of a second.
QString ReachablePath(const KivUnicodeString& path);

// Where to begin to look for a directory when a user has typed a path: there, else in the nearest directory
// above it that is there; at home when it does not answer. A relative path counts from the directory
// of the program.
QString DirectoryStart(const QString& typed);

#pragma once

#include <QString>

// Where to begin to look for a directory when a user has typed a path: there, else in the nearest directory
// above it that is there; at home when it does not answer. A relative path counts from the directory
// of the program.
QString DirectoryStart(const QString& typed);

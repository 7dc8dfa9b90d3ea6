#pragma once

#include <QString>

// What a user has typed for a directory; a relative path counts from the directory of the program.
class DirectoryPath {
public:
    explicit DirectoryPath(const QString& typed);

    // Whether it is certain that there is no such directory. A share that does not answer may have it, and
    // an empty text names none.
    bool IsMissing() const;
    // Where to begin to look for another one: itself, else the nearest directory above that is there.
    QString Start() const;

private:
    bool _isEmpty;
    QString _wanted; // with a dot at its end, which only a directory bears
    QString _found;
};

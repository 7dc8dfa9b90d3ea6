#pragma once

#include "Base/KivUnicodeString.h"
#include "Disk/KivFileHandle.h"

#include <string_view>

// Where a file stands or is to stand: its directory, held open, and its name there. Whatever is done through
// it meets that one directory and takes no further descriptor for it, so that nothing begun is left half done
// for want of one. May be used from any thread.
class KivFilePlace {
public:
    // Opens the directory of the path; one without a slash is in the current directory.
    explicit KivFilePlace(const KivUnicodeString& path);

    bool IsOpen() const { return _directory.IsOpen(); }
    int Error() const { return _error; } // why it is not open

    const KivUnicodeString& Path() const { return _path; } // that it was opened by
    int Directory() const { return _directory.Get(); }
    const KivUnicodeString& Name() const { return _name; }
    // The name in the directory of a working file beside it: ".name<ending>".
    KivUnicodeString Hidden(std::string_view ending) const;

    // Makes the names in the directory survive a power failure. 0, or the error.
    int Flush() const;

private:
    KivUnicodeString _path;
    KivUnicodeString _name;
    KivFileHandle _directory;
    int _error = 0;
};

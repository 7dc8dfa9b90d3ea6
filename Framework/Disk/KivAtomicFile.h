#pragma once

#include "Disk/KivFileContent.h"
#include "Disk/KivFilePlace.h"

#include <string_view>
#include <sys/types.h>

// Replaces a file as a whole: at every instant a reader sees the old one or the new one. The caller holds the
// file's lock, so that a temporary file that stands already can only be a dead process's.
class KivAtomicFile {
public:
    // The place is open, and outlives this.
    explicit KivAtomicFile(const KivFilePlace& place);
    ~KivAtomicFile();
    KivAtomicFile(const KivAtomicFile&) = delete;
    KivAtomicFile& operator=(const KivAtomicFile&) = delete;

    // Writes and flushes the bytes under the temporary name, with the permissions and owner of the file to be
    // replaced, else with these permissions.
    bool Write(std::string_view bytes, mode_t permissions);

    // Puts the new file in place.
    bool Rename();

    // Makes the new name survive a power failure.
    bool FlushDirectory();

    const KivUnicodeString& Reason() const { return _reason; }

    // The new file, open, and its stamp.
    KivFileHandle TakeHandle() { return std::move(_handle); }
    const KivFileStamp& Stamp() const { return _stamp; }

private:
    bool Fail(const char* what);
    bool Open();
    bool TakeOver(mode_t permissions);

    const KivFilePlace& _place;
    KivUnicodeString _temporary;
    bool _isThere = false; // the temporary file is ours to remove
    KivFileHandle _handle;
    KivFileStamp _stamp;
    KivUnicodeString _reason;
};

// Creates a file beside the place's, which must not stand yet, named like it with an ending, and makes it and
// its name survive a power failure. 0, or the error, and no file; EEXIST: it stands.
int KivWriteNewFile(const KivFilePlace& place, std::string_view ending, std::string_view bytes);

// Makes a directory and those above it, as far as they are missing, and makes them survive a power failure.
// 0, or the error.
int KivMakeDirectories(const KivUnicodeString& path, mode_t permissions);

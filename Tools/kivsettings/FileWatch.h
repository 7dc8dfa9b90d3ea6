#pragma once

#include "Disk/KivFileHandle.h"

#include "Base/KivUnicodeString.h"

#include <filesystem>
#include <vector>

// Waits, without polling, until something happens to one of some files, a signal asks the program to
// end, or nobody reads its standard output any more. Files that are not there yet are waited for.
class FileWatch {
public:
    enum class Event { Changed, Ended, OutputClosed };

    explicit FileWatch(std::vector<KivUnicodeString> files);

    bool IsOpen() const { return _signals.IsOpen() && _changes.IsOpen(); }
    Event Wait();

private:
    void WatchDirectory(std::filesystem::path directory);
    void Watch();
    void Drain();

    std::vector<KivUnicodeString> _files;
    KivFileHandle _signals, _changes;
};

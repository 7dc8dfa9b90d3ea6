#pragma once

#include "Base/KivUnicodeString.h"
#include "Disk/KivFileHandle.h"
#include "Disk/KivTimedCalls.h"

#include <memory>
#include <vector>

// Waits, without polling, until something happens to one of some files, a signal asks the program to
// end, or nobody reads its standard output any more. Files that are not there yet are waited for, and those
// on a share that does not answer keep nobody waiting.
class FileWatch {
public:
    enum class Event { Changed, Ended, OutputClosed };

    explicit FileWatch(std::vector<KivUnicodeString> files);

    bool IsOpen() const { return _signals.IsOpen() && _changes->IsOpen(); }
    Event Wait();

private:
    void Watch();
    void Drain();

    std::vector<KivUnicodeString> _files;
    KivFileHandle _signals;
    std::shared_ptr<const KivFileHandle> _changes; // shared with calls that do not come back
    KivTimedCalls<bool> _calls;
};

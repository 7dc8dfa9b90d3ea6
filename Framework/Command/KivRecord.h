#pragma once

#include "Base/KivResult.h"
#include "Base/KivString.h"

#include <map>

// The recorder of a session that is captured or replayed, for tests of whole scenarios.
class KivRecord {
public:
    enum class Mode { Idle, Capture, Replay };

    explicit KivRecord(Mode mode) : _mode(mode) {}

    // The recorder that governs this process, or null. Not owned.
    static KivRecord* GetMain();
    static void SetMain(KivRecord* recorder);

    bool IsReplay() const { return _mode == Mode::Replay; }
    bool IsCapture() const { return _mode == Mode::Capture; }

    // How a piece of software behaved when the record was made. E_FAIL, and the level untouched, when the
    // record says nothing of it.
    HRESULT GetSoftwareRecordLevel(const char* name, int* level) const;
    void SetSoftwareRecordLevel(const char* name, int level);

private:
    Mode _mode;
    std::map<KivString, int> _levels;
};

#pragma once

#include "Base/KivDiagnostic.h"

#include <functional>
#include <memory>

// Hears the framework's diagnostics as long as it lives, and passes them on to who heard them before.
class OptionsDiagnostics {
public:
    explicit OptionsDiagnostics(KivDiagnosticSink hear);
    ~OptionsDiagnostics();
    OptionsDiagnostics(const OptionsDiagnostics&) = delete;
    OptionsDiagnostics& operator=(const OptionsDiagnostics&) = delete;

private:
    // Shared with the sink: somebody may have put a sink of his own on top that still leads here.
    struct Ears {
        KivDiagnosticSink hear, before;
    };
    std::shared_ptr<Ears> _ears;
};

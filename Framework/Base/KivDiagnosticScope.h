#pragma once

#include "Base/KivDiagnostic.h"

#include <functional>
#include <memory>
#include <vector>

// Hears what is said (KivReport) as long as it lives. Scopes lie upon one another: the newest hears first,
// and what it does not take goes to the one below, in the end to standard error. They may end in any order,
// also while they are hearing. Used from the thread that reports.
class KivDiagnosticScope {
public:
    // Answers whether it has taken the diagnostic.
    using Hear = std::function<bool(const KivDiagnostic& said)>;

    explicit KivDiagnosticScope(Hear hear);
    // Takes everything, into a list of the caller's that has to outlive the scope.
    explicit KivDiagnosticScope(std::vector<KivDiagnostic>& all);
    ~KivDiagnosticScope();
    KivDiagnosticScope(const KivDiagnosticScope&) = delete;
    KivDiagnosticScope& operator=(const KivDiagnosticScope&) = delete;

private:
    friend void KivReport(const KivDiagnostic& diagnostic);
    // False when nobody has taken it.
    static bool Tell(const KivDiagnostic& diagnostic);

    std::shared_ptr<const Hear> _hear; // shared with a telling that is under way
};

#pragma once

#include "Base/KivDiagnostic.h"

#include <functional>
#include <memory>
#include <vector>

// Observes what is reported (KivReport) as long as it lives. Scopes lie upon one another: the newest is
// notified first, and what it does not take goes to the one below, in the end to standard error. They may end
// in any order, also while they are notified. Used from the thread that reports.
class KivDiagnosticScope {
public:
    // Answers whether it has taken the diagnostic.
    using Observer = std::function<bool(const KivDiagnostic& said)>;

    explicit KivDiagnosticScope(Observer observer);
    // Takes everything, into a list of the caller's that has to outlive the scope.
    explicit KivDiagnosticScope(std::vector<KivDiagnostic>& all);
    ~KivDiagnosticScope();
    KivDiagnosticScope(const KivDiagnosticScope&) = delete;
    KivDiagnosticScope& operator=(const KivDiagnosticScope&) = delete;

private:
    friend void KivReport(const KivDiagnostic& diagnostic);
    // False when nobody has taken it.
    static bool Notify(const KivDiagnostic& diagnostic);

    std::shared_ptr<const Observer> _observer; // shared with a notification that is under way
};

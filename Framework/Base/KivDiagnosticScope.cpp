#include "Base/KivDiagnosticScope.h"

#include <algorithm>
#include <utility>

namespace {

using Observers = std::vector<std::shared_ptr<const KivDiagnosticScope::Observer>>;

// The newest is the last. Never destroyed: a diagnostic may still come while the process ends.
Observers& AllObservers()
{
    static auto& observers = *new Observers;
    return observers;
}

} // namespace

KivDiagnosticScope::KivDiagnosticScope(Observer observer)
    : _observer(std::make_shared<const Observer>(std::move(observer)))
{
    AllObservers().push_back(_observer);
}

KivDiagnosticScope::KivDiagnosticScope(std::vector<KivDiagnostic>& all)
    : KivDiagnosticScope([&all](const KivDiagnostic& said) {
          all.push_back(said);
          return true;
      })
{}

KivDiagnosticScope::~KivDiagnosticScope()
{
    std::erase(AllObservers(), _observer);
}

bool KivDiagnosticScope::Notify(const KivDiagnostic& diagnostic)
{
    // A copy: who hears it may begin a scope, or end any.
    const Observers observers = AllObservers();
    return std::any_of(observers.rbegin(), observers.rend(), [&](const auto& observer) {
        const bool hasEnded =
            std::find(AllObservers().begin(), AllObservers().end(), observer) == AllObservers().end();
        return !hasEnded && (*observer)(diagnostic);
    });
}

#include "Base/KivDiagnosticScope.h"

#include <algorithm>
#include <utility>

namespace {

using Hearers = std::vector<std::shared_ptr<const KivDiagnosticScope::Hear>>;

// The newest is the last. Never destroyed: a diagnostic may still come while the process ends.
Hearers& Listening()
{
    static auto& listening = *new Hearers;
    return listening;
}

} // namespace

KivDiagnosticScope::KivDiagnosticScope(Hear hear) : _hear(std::make_shared<const Hear>(std::move(hear)))
{
    Listening().push_back(_hear);
}

KivDiagnosticScope::KivDiagnosticScope(std::vector<KivDiagnostic>& all)
    : KivDiagnosticScope([&all](const KivDiagnostic& said) {
          all.push_back(said);
          return true;
      })
{}

KivDiagnosticScope::~KivDiagnosticScope()
{
    std::erase(Listening(), _hear);
}

bool KivDiagnosticScope::Tell(const KivDiagnostic& diagnostic)
{
    // A copy: who hears it may begin a scope, or end any.
    const Hearers hearers = Listening();
    return std::any_of(hearers.rbegin(), hearers.rend(), [&](const auto& hear) {
        const bool hasEnded = std::find(Listening().begin(), Listening().end(), hear) == Listening().end();
        return !hasEnded && (*hear)(diagnostic);
    });
}

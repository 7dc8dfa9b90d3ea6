#include "DraftingDiagnostics.h"

#include <cstdio>

DraftingDiagnostics::DraftingDiagnostics(bool echoes) : _echoes(echoes)
{
    // Called at once in this thread; from another one in the next event.
    _before = KivSetDiagnosticSink([this](const KivDiagnostic& diagnostic) {
        QMetaObject::invokeMethod(this, [this, diagnostic] { Take(diagnostic); });
    });
}

DraftingDiagnostics::~DraftingDiagnostics()
{
    KivSetDiagnosticSink(std::move(_before));
}

void DraftingDiagnostics::Take(const KivDiagnostic& diagnostic)
{
    if (_echoes) std::fprintf(stderr, "%s\n", diagnostic.Words().ConvertToChar());
    if (_all.size() == kMost) _all.erase(_all.begin());
    _all.push_back(diagnostic);
    emit Said();
}

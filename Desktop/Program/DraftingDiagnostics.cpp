#include "Program/DraftingDiagnostics.h"

#include <cstdio>

DraftingDiagnostics::DraftingDiagnostics(bool echoes)
    : _echoes(echoes), _scope([this](const KivDiagnostic& diagnostic) {
          // Called at once in this thread; from another one in the next event.
          QMetaObject::invokeMethod(this, [this, diagnostic] { Take(diagnostic); });
          return true;
      })
{}

void DraftingDiagnostics::Take(const KivDiagnostic& diagnostic)
{
    if (_echoes) std::fprintf(stderr, "%s\n", diagnostic.Message().ConvertToChar());
    if (_all.size() == kMost) _all.erase(_all.begin());
    _all.push_back(diagnostic);
    emit Said();
}

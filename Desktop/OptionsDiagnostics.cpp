#include "OptionsDiagnostics.h"

#include <utility>

OptionsDiagnostics::OptionsDiagnostics(KivDiagnosticSink hear)
    : _ears(std::make_shared<Ears>(Ears{std::move(hear), {}}))
{
    _ears->before = KivSetDiagnosticSink([ears = _ears](const KivDiagnostic& diagnostic) {
        if (ears->hear) ears->hear(diagnostic);
        if (ears->before) ears->before(diagnostic);
    });
}

OptionsDiagnostics::~OptionsDiagnostics()
{
    _ears->hear = {};
    KivSetDiagnosticSink(_ears->before);
}

#include "Base/KivDiagnostic.h"

#include <cstdio>
#include <utility>

namespace {

// Never destroyed: a diagnostic may still come while the process ends.
KivDiagnosticSink& Sink()
{
    static auto& sink = *new KivDiagnosticSink;
    return sink;
}

} // namespace

KivUnicodeString KivDiagnostic::Words() const
{
    KivUnicodeString words;
    if (!file.IsEmpty()) {
        words = file;
        if (line > 0) words.Append(":" + std::to_string(line));
        words.Append(": ");
    }
    if (!key.IsEmpty()) words.Append(key.View()).Append(": ");
    return words + text;
}

void KivReport(const KivDiagnostic& diagnostic)
{
    if (Sink()) {
        Sink()(diagnostic);
    } else {
        std::fprintf(stderr, "%s\n", diagnostic.Words().ConvertToChar());
    }
}

KivDiagnosticSink KivSetDiagnosticSink(KivDiagnosticSink sink)
{
    return std::exchange(Sink(), std::move(sink));
}

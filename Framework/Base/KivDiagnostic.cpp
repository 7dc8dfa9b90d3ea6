#include "Base/KivDiagnosticScope.h"

#include <cstdio>

KivUnicodeString KivDiagnostic::Message() const
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
    if (!KivDiagnosticScope::Notify(diagnostic))
        std::fprintf(stderr, "%s\n", diagnostic.Message().ConvertToChar());
}

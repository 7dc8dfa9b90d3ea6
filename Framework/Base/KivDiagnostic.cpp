#include "Base/KivDiagnostic.h"

#include "Base/KivDiagnosticScope.h"

#include <cstdio>

KivUnicodeString KivDiagnostic::Message() const
{
    KivUnicodeString message;
    if (!file.IsEmpty()) {
        message = file;
        if (line > 0) message.Append(":" + std::to_string(line));
        message.Append(": ");
    }
    if (!key.IsEmpty()) message.Append(key.View()).Append(": ");
    return message + text;
}

void KivReport(const KivDiagnostic& diagnostic)
{
    if (!KivDiagnosticScope::Notify(diagnostic))
        std::fprintf(stderr, "%s\n", diagnostic.Message().ConvertToChar());
}

void KivReportFailedAssertion(const char* what, const char* whose, const char* file, int line)
{
    char text[256];
    std::snprintf(text, sizeof text, ">> ASSERTION FAILED %.32s: %.40s [File: %.128s:%4d].<<\n", what, whose,
                  file, line);
    KivReport({.severity = KivDiagnostic::Severity::Error, .text = text});
}

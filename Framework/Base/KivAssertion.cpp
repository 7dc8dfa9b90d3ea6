#include "Base/KivAssertion.h"

#include "Base/KivDiagnostic.h"

#include <cstdio>

void KivReportFailedAssertion(const char* what, const char* whose, const char* file, int line)
{
    char text[256];
    std::snprintf(text, sizeof text, ">> ASSERTION FAILED %.32s: %.40s [File: %.128s:%4d].<<\n", what, whose,
                  file, line);
    KivReport({.severity = KivDiagnostic::Severity::Error, .text = text});
}

#pragma once

#include "Base/KivString.h"
#include "Base/KivUnicodeString.h"

// One thing that went wrong with what the program was given, said to a person.
struct KivDiagnostic {
    enum class Severity { Note, Warning, Error };

    Severity severity = Severity::Warning;
    KivUnicodeString text = {}; // one sentence without file, line and key
    KivUnicodeString file = {}; // the file at fault, or empty
    int line = 0;               // 1-based, or 0 when no line is at fault
    KivString key = {};         // the setting at fault, or empty

    // "file:line: key: text", without the parts that are empty.
    KivUnicodeString Message() const;
};

// Reports a diagnostic, in the thread that calls, to whoever observes (see KivDiagnosticScope), else on
// standard error.
void KivReport(const KivDiagnostic& diagnostic);

// Reports as a diagnostic that a condition which a class relies on does not hold, and returns: what, whose
// (may be empty), and where. Texts beyond 32, 40 and 128 characters are cut.
void KivReportFailedAssertion(const char* what, const char* whose, const char* file, int line);

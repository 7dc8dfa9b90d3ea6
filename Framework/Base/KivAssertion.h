#pragma once

// Reports as a diagnostic that a condition which a class relies on does not hold, and returns: what, whose
// (may be empty), and where. Texts beyond 32, 40 and 128 characters are cut.
void KivReportFailedAssertion(const char* what, const char* whose, const char* file, int line);

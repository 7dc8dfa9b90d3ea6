#pragma once

// Reports that a condition which a class relies on does not hold, to the sink of diagnostics, and returns:
// what, whose (may be empty), and where. Texts beyond 32, 40 and 128 characters are cut.
void KivReportFailedAssertion(const char* what, const char* whose, const char* file, int line);

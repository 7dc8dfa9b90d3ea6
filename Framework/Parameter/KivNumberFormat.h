#pragma once

#include "Base/KivUnicodeString.h"

// Writes a plain number in a format as of printf: any text with exactly one conversion e, E, f, F, g or G in
// it, with flags out of "+- 0", a width up to 64 and a precision up to 17; "%%" stands for a percent sign and
// a length "l" is passed over. The decimal mark is a point everywhere. A format that is null or anything else
// is not used: the number is then written with at most so many decimals as precision says, without zeros at
// its end.
KivUnicodeString KivPrintNumber(double value, const char* format, int precision);

#pragma once

#include "Base/KivUnicodeString.h"

#include <string>

// The decimal mark of every number that is written for a person: a point until a program that shows numbers
// sets the one of its user's locale, before it shows the first. A point or a comma; others are not taken.
void KivSetDecimalMark(char mark);
char KivDecimalMark();

// Writes a plain number in a format as of printf: any text with exactly one conversion e, E, f, F, g or G in
// it, with flags out of "+- 0", a width up to 64 and a precision up to 17; "%%" stands for a percent sign and
// a length "l" is passed over. The decimal mark is KivDecimalMark. A format that is null or anything else
// is not used: the number is then written with at most so many decimals as precision says, without zeros at
// its end.
KivUnicodeString KivPrintNumber(double value, const char* format, int precision);

// Writes a number with the decimal mark and at most so many decimals (0 to 17; others are drawn into that
// range), the last one rounded, no decimals written that the double does not have, zeros at its end left out,
// zero without a sign. From 1e16 on it is written with an exponent. Infinite: "∞" or "-∞"; not a number: "?".
std::string KivPrintDecimal(double value, int precision);

// The same text for what is not finite, else the empty string.
std::string KivPrintNotFinite(double value);

#pragma once

#include <string>

// Writes a number with a point and at most so many decimals (0 to 17; others are drawn into that range), the
// last one rounded, no decimals written that the double does not have, zeros at its end left out, zero
// without a sign. From 1e16 on it is written with an exponent. Infinite: "∞" or "-∞"; not a number: "?".
std::string KivPrintDecimal(double value, int precision);

// The same text for what is not finite, else the empty string.
std::string KivPrintNotFinite(double value);

#pragma once

#include <string>
#include <string_view>

// A typed text with its typographic spaces, primes, quotes, minus signs and fractions replaced by those of
// the keyboard: U+2033 becomes ", U+2212 becomes -, U+00BD becomes " 1/2 ". Other characters stay; UTF-8.
std::string KivPlainText(std::string_view typed);

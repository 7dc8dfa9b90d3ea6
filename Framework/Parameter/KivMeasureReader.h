#pragma once

#include "Parameter/KivControlUnit.h"

#include <string>
#include <string_view>

// A typed text with its typographic spaces, primes, quotes, minus signs and fractions replaced by those of
// the keyboard: U+2033 becomes ", U+2212 becomes -, U+00BD becomes " 1/2 ". Other characters stay; UTF-8.
std::string KivPlainText(std::string_view typed);

// Reads one typed measure from left to right, out of a text that KivPlainText has prepared and that outlives
// the reader. What the text may be is told at KivMeasure::Read.
class KivMeasureReader {
public:
    explicit KivMeasureReader(std::string_view text) : _rest(text) {}

    // False, and stored is untouched, when the text is not one measure.
    bool Read(const KivControlUnit& current, double& stored);

private:
    // Each of these takes what it names off the text, or answers that it is not there.
    void SkipSpaces();
    bool Take(char expected);
    std::string_view TakeDigits();
    bool TakeNumber(double& number, bool& whole);
    bool TakeDenominator(double& denominator);
    bool TakeMixedNumber(double& number);
    bool TakeUnit(KivDlgMagnitude magnitude, const KivControlUnit*& unit);
    bool TakeInches(double& inches);

    std::string_view _rest;
};

#include "Parameter/KivMeasureReader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace {

struct Replacement {
    std::string_view typed;
    std::string_view plain;
};

// A fraction has a space on either side, so that digits beside it are no part of it.
constexpr Replacement kReplacements[] = {
    {"\t", " "},         {"\n", " "},         {"\r", " "},         {"\u00A0", " "},     {"\u2002", " "},
    {"\u2003", " "},     {"\u2007", " "},     {"\u2009", " "},     {"\u200A", " "},     {"\u202F", " "},
    {"\u2018", "'"},     {"\u2019", "'"},     {"\u02B9", "'"},     {"\u2032", "'"},     {"\u201C", "\""},
    {"\u201D", "\""},    {"\u02BA", "\""},    {"\u2033", "\""},    {"\u2010", "-"},     {"\u2011", "-"},
    {"\u2012", "-"},     {"\u2013", "-"},     {"\u2212", "-"},     {"\u2044", "/"},     {"\u2215", "/"},
    {"\u00BA", "°"},     {"\u00BC", " 1/4 "}, {"\u00BD", " 1/2 "}, {"\u00BE", " 3/4 "}, {"\u215B", " 1/8 "},
    {"\u215C", " 3/8 "}, {"\u215D", " 5/8 "}, {"\u215E", " 7/8 "},
};

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

bool ToDouble(std::string_view digits, double& number)
{
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

} // namespace

std::string KivPlainText(std::string_view typed)
{
    std::string plain;
    while (!typed.empty()) {
        const auto* const found =
            std::find_if(std::begin(kReplacements), std::end(kReplacements),
                         [typed](const Replacement& r) { return typed.starts_with(r.typed); });
        const bool known = found != std::end(kReplacements);
        plain += known ? found->plain : typed.substr(0, 1);
        typed.remove_prefix(known ? found->typed.size() : 1);
    }
    return plain;
}

bool KivMeasureReader::Read(const KivControlUnit& current, double& stored)
{
    SkipSpaces();
    const bool negative = Take('-');
    if (!negative) Take('+');
    SkipSpaces();

    double number = 0.0;
    const KivControlUnit* unit = &current;
    if (current.magnitude == KivDlgMagnitudeNone) {
        bool whole = false;
        if (!TakeNumber(number, whole)) return false;
    } else {
        if (!TakeMixedNumber(number)) return false;
        SkipSpaces();
        if (!_rest.empty() && !TakeUnit(current.magnitude, unit)) return false;
        SkipSpaces();
        // Only a foot that was written is followed by inches: 2 1 is nothing, even where feet are current.
        if (!_rest.empty() && unit->number == KivDlgUnitFoot) {
            double inches = 0.0;
            if (!TakeInches(inches)) return false;
            number = number * 12.0 + inches;
            unit = &KivControlUnit::Of(KivDlgUnitInch);
        }
    }
    SkipSpaces();
    const double value = unit->ToStored(negative ? -number : number);
    if (!_rest.empty() || !std::isfinite(value)) return false;
    stored = value + 0.0; // zero has no sign
    return true;
}

bool KivMeasureReader::TakeInches(double& inches)
{
    Take('-');
    SkipSpaces();
    if (!TakeMixedNumber(inches)) return false;
    SkipSpaces();
    // 1'234 is not a foot and 234 inches, but digits in groups.
    if (_rest.empty()) return inches < 12.0;
    const KivControlUnit* unit = nullptr;
    return TakeUnit(KivDlgMagnitudeLength, unit) && unit->number == KivDlgUnitInch;
}

bool KivMeasureReader::TakeMixedNumber(double& number)
{
    bool whole = false;
    if (!TakeNumber(number, whole)) return false;
    if (!whole) return true;
    const std::string_view afterWhole = _rest;
    SkipSpaces();
    double denominator = 0.0;
    if (Take('/')) {
        if (!TakeDenominator(denominator)) return false;
        number /= denominator;
        return true;
    }
    const std::string_view digits = TakeDigits();
    SkipSpaces();
    double numerator = 0.0;
    if (digits.empty() || !Take('/')) {
        _rest = afterWhole;
        return true;
    }
    if (!ToDouble(digits, numerator) || !TakeDenominator(denominator)) return false;
    number += numerator / denominator;
    return true;
}

bool KivMeasureReader::TakeDenominator(double& denominator)
{
    SkipSpaces();
    return ToDouble(TakeDigits(), denominator) && denominator > 0.0;
}

bool KivMeasureReader::TakeNumber(double& number, bool& whole)
{
    std::string digits(TakeDigits());
    whole = true;
    if (Take('.') || Take(',')) {
        digits.append(".").append(TakeDigits());
        whole = false;
    }
    const std::string_view beforeExponent = _rest;
    if (Take('e') || Take('E')) {
        const bool negative = Take('-');
        if (!negative) Take('+');
        const std::string_view exponent = TakeDigits();
        if (exponent.empty()) {
            _rest = beforeExponent;
        } else {
            digits.append(negative ? "e-" : "e+").append(exponent);
            whole = false;
        }
    }
    return ToDouble(digits, number);
}

bool KivMeasureReader::TakeUnit(KivDlgMagnitude magnitude, const KivControlUnit*& unit)
{
    constexpr std::string_view twoPrimes = "''"; // as typed for the inch mark
    std::string_view word = _rest.substr(0, std::min(_rest.find_first_not_of(kLetters), _rest.size()));
    const bool spelled = !word.empty();
    for (const std::string_view mark :
         {twoPrimes, std::string_view("'"), std::string_view("\""), std::string_view("°")})
        if (word.empty() && _rest.starts_with(mark)) word = _rest.substr(0, mark.size());
    _rest.remove_prefix(word.size());
    if (spelled) Take('.'); // an abbreviation, as in "3 in."
    unit = KivControlUnit::Find(word == twoPrimes ? "\"" : word);
    return unit && unit->magnitude == magnitude;
}

void KivMeasureReader::SkipSpaces()
{
    _rest.remove_prefix(std::min(_rest.find_first_not_of(' '), _rest.size()));
}

bool KivMeasureReader::Take(char expected)
{
    if (!_rest.starts_with(expected)) return false;
    _rest.remove_prefix(1);
    return true;
}

std::string_view KivMeasureReader::TakeDigits()
{
    const std::string_view digits = _rest.substr(0, std::min(_rest.find_first_not_of(kDigits), _rest.size()));
    _rest.remove_prefix(digits.size());
    return digits;
}

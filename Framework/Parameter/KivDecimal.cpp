#include "Parameter/KivDecimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr double kFirstWithExponent = 1.0e16; // a double has no decimals from here on
constexpr int kMostDecimals = 17;

} // namespace

std::string KivPrintNotFinite(double value)
{
    if (std::isnan(value)) return "?";
    if (std::isinf(value)) return value < 0.0 ? "-∞" : "∞";
    return {};
}

std::string KivPrintDecimal(double value, int precision)
{
    if (!std::isfinite(value)) return KivPrintNotFinite(value);
    precision = std::clamp(precision, 0, kMostDecimals);

    std::array<char, 400> buffer; // the smallest double has 324 decimals
    char* const begin = buffer.data();
    char* const limit = begin + buffer.size();
    const bool withExponent = std::abs(value) >= kFirstWithExponent;
    const auto format = withExponent ? std::chars_format::scientific : std::chars_format::fixed;
    char* end = std::to_chars(begin, limit, value, format).ptr;
    if (withExponent) return {begin, end};

    const char* point = std::find(begin, end, '.');
    if (end - point > precision + 1) {
        end = std::to_chars(begin, limit, value, format, precision).ptr;
        point = std::find(begin, end, '.');
    }
    if (point != end) {
        while (end[-1] == '0') --end;
        if (end[-1] == '.') --end;
    }
    const std::string text(begin, end);
    return text == "-0" ? "0" : text;
}

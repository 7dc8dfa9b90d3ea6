#include "Parameter/KivNumberFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

namespace {

char decimalMark = '.'; // set once, by the thread that shows

struct Conversion {
    std::string_view flags;
    std::size_t width = 0;
    int precision = 6;
    char letter = 'g';

    bool Has(char flag) const { return flags.find(flag) != std::string_view::npos; }
};

struct Format {
    std::string before;
    Conversion conversion;
    std::string after;
};

// The number at the start of the text, which loses it; 0 without digits, none when it is above the highest
// one.
std::optional<int> TakeNumber(std::string_view& text, int highest)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::invalid_argument) return 0;
    if (error != std::errc() || number < 0 || number > highest) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

std::optional<Conversion> TakeConversion(std::string_view& text)
{
    Conversion conversion;
    const std::size_t flags = std::min(text.find_first_not_of("+- 0"), text.size());
    conversion.flags = text.substr(0, flags);
    text.remove_prefix(flags);
    const auto width = TakeNumber(text, 64);
    if (!width) return std::nullopt;
    conversion.width = static_cast<std::size_t>(*width);
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        const auto precision = TakeNumber(text, 17);
        if (!precision) return std::nullopt;
        conversion.precision = *precision;
    }
    if (text.starts_with('l')) text.remove_prefix(1);
    if (text.empty() || std::string_view("eEfFgG").find(text.front()) == std::string_view::npos)
        return std::nullopt;
    conversion.letter = text.front();
    text.remove_prefix(1);
    return conversion;
}

std::optional<Format> ReadFormat(std::string_view text)
{
    Format format;
    bool converted = false;
    while (!text.empty()) {
        std::string& literal = converted ? format.after : format.before;
        if (!text.starts_with('%') || text.starts_with("%%")) {
            literal += text.front();
            text.remove_prefix(text.front() == '%' ? 2 : 1);
            continue;
        }
        text.remove_prefix(1);
        const auto conversion = TakeConversion(text);
        if (!conversion || converted) return std::nullopt;
        format.conversion = *conversion;
        converted = true;
    }
    return converted ? std::optional(format) : std::nullopt;
}

std::string Digits(double value, char letter, int precision)
{
    const bool upper = letter >= 'A' && letter <= 'Z';
    const char lower = upper ? static_cast<char>(letter - 'A' + 'a') : letter;
    const auto form = lower == 'g'   ? std::chars_format::general
                      : lower == 'f' ? std::chars_format::fixed
                                     : std::chars_format::scientific;
    std::array<char, 400> buffer; // the greatest double has 309 digits before the point
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, form, precision);
    std::string digits(buffer.data(), result.ptr);
    if (upper) std::replace(digits.begin(), digits.end(), 'e', 'E');
    std::replace(digits.begin(), digits.end(), '.', decimalMark);
    return digits;
}

std::string Convert(double value, const Conversion& conversion)
{
    const bool finite = std::isfinite(value);
    const std::string sign = std::signbit(value)   ? "-"
                             : conversion.Has('+') ? "+"
                             : conversion.Has(' ') ? " "
                                                   : "";
    std::string digits = finite ? Digits(std::abs(value), conversion.letter, conversion.precision)
                                : KivPrintNotFinite(std::abs(value));
    const std::size_t length = sign.size() + (finite ? digits.size() : 1);
    const std::size_t missing = conversion.width > length ? conversion.width - length : 0;
    if (conversion.Has('-')) return sign + digits + std::string(missing, ' ');
    if (conversion.Has('0') && finite) return sign + std::string(missing, '0') + digits;
    return std::string(missing, ' ') + sign + digits;
}

constexpr double kFirstWithExponent = 1.0e16; // a double has no decimals from here on
constexpr int kMostDecimals = 17;

} // namespace

void KivSetDecimalMark(char mark)
{
    if (mark == '.' || mark == ',') decimalMark = mark;
}

char KivDecimalMark()
{
    return decimalMark;
}

KivUnicodeString KivPrintNumber(double value, const char* format, int precision)
{
    const auto known = ReadFormat(format ? format : "");
    if (!known) return KivUnicodeString(KivPrintDecimal(value, precision));
    return KivUnicodeString(known->before + Convert(value, known->conversion) + known->after);
}

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
    const char* point = std::find(begin, end, '.');
    if (!withExponent && end - point > precision + 1) {
        end = std::to_chars(begin, limit, value, format, precision).ptr;
        point = std::find(begin, end, '.');
    }
    if (!withExponent && point != end) {
        while (end[-1] == '0') --end;
        if (end[-1] == '.') --end;
    }
    std::string text(begin, end);
    std::replace(text.begin(), text.end(), '.', decimalMark);
    return text == "-0" ? "0" : text;
}

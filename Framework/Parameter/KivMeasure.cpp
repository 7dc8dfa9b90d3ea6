#include "Parameter/KivMeasure.h"

#include "Parameter/KivControlUnit.h"
#include "Parameter/KivMeasureReader.h"
#include "Parameter/KivNumberFormat.h"

#include <cmath>
#include <cstdint>
#include <numeric>
#include <string>

namespace {

constexpr double kMostInches = 1.0e14; // in 64ths still a whole number of a double
constexpr std::size_t kLongestText = 256;

// The parts that are not empty, with a space between them; one of the two is not.
std::string Joined(const std::string& left, const std::string& right)
{
    return left.empty() || right.empty() ? left + right : left + " " + right;
}

// Feet and the text of the inches below a foot; a part that is zero is left out.
std::string FeetAndInches(std::int64_t feet, const std::string& inches)
{
    const std::string feetText = feet ? std::to_string(feet) + "'" : "";
    return Joined(feetText, inches == "0" && feet ? "" : inches + "\"");
}

std::string WithFraction(double inches, std::int64_t denominator)
{
    const auto parts = static_cast<std::int64_t>(std::round(inches * static_cast<double>(denominator)));
    const std::int64_t whole = parts / denominator;
    const std::int64_t numerator = parts % denominator;
    const std::int64_t feet = whole / 12;
    std::string text = whole % 12 || !numerator ? std::to_string(whole % 12) : "";
    if (numerator) {
        const std::int64_t common = std::gcd(numerator, denominator);
        text = Joined(text, std::to_string(numerator / common) + "/" + std::to_string(denominator / common));
    }
    return FeetAndInches(feet, text);
}

std::string WithDecimals(double inches, int precision)
{
    const double rest = std::fmod(inches, 12.0);
    const auto feet = static_cast<std::int64_t>(std::round((inches - rest) / 12.0));
    const std::string text = KivPrintDecimal(rest, precision);
    return text == "12" ? FeetAndInches(feet + 1, "0") : FeetAndInches(feet, text);
}

} // namespace

KivUnicodeString KivMeasure::Print(double stored, KivDlgUnit number, int precision)
{
    const KivControlUnit& unit = KivControlUnit::Of(number);
    const double shown = unit.ToShown(stored);
    const auto decimal = [&](std::string_view suffix) {
        return KivUnicodeString(KivPrintDecimal(shown, precision).append(suffix));
    };
    if (unit.notation == KivNotation::Decimal) return decimal(unit.suffix);
    const double inches = std::abs(shown);
    if (!(inches < kMostInches)) return decimal(KivControlUnit::Of(KivDlgUnitInch).suffix);
    const std::string text = unit.notation == KivNotation::FeetInchFraction
                                 ? WithFraction(inches, unit.denominator)
                                 : WithDecimals(inches, precision);
    return KivUnicodeString(shown < 0.0 && text != "0\"" ? "-" + text : text);
}

std::optional<KivMeasure::Doubt> KivMeasure::DoubtOf(const KivUnicodeString& typed)
{
    constexpr std::string_view digits = "0123456789";
    const std::string_view text = typed.View();
    const std::size_t mark = text.find(KivDecimalMark() == ',' ? '.' : ',');
    if (mark == std::string_view::npos || mark == 0) return {};
    const std::size_t before = text.find_last_not_of(digits, mark - 1) + 1; // 0 where all are digits
    const std::size_t end = std::min(text.find_first_not_of(digits, mark + 1), text.size());
    const std::string_view whole = text.substr(before, mark - before);
    if (whole.empty() || whole.size() > 3 || whole.front() == '0' || end - mark != 4) return {};

    std::string_view decimals = text.substr(mark + 1, 3);
    decimals = decimals.substr(0, decimals.find_last_not_of('0') + 1);
    const auto with = [&](const std::string& rest) {
        return KivUnicodeString(std::string(text.substr(0, mark)) + rest + std::string(text.substr(end)));
    };
    return Doubt{with(decimals.empty() ? "" : KivDecimalMark() + std::string(decimals)),
                 with(std::string(text.substr(mark + 1, 3)))};
}

bool KivMeasure::Read(const KivUnicodeString& text, KivDlgUnit current, double& stored)
{
    if (text.View().size() > kLongestText) return false;
    const std::string plain = KivPlainText(text.View());
    return KivMeasureReader(plain).Read(KivControlUnit::Of(current), stored);
}

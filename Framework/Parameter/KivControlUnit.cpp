#include "Parameter/KivControlUnit.h"

#include <algorithm>
#include <numbers>

namespace {

using enum KivNotation;

constexpr KivDlgMagnitude kLength = KivDlgMagnitudeLength;
constexpr KivDlgMagnitude kAngle = KivDlgMagnitudeAngle;

constexpr KivUnitRatio kSame{1.0, 1.0};
constexpr KivUnitRatio kMilli{1000.0, 1.0};
constexpr KivUnitRatio kCenti{100.0, 1.0};
constexpr KivUnitRatio kKilo{1.0, 1000.0};
constexpr KivUnitRatio kInch{5000.0, 127.0};
constexpr KivUnitRatio kFoot{1250.0, 381.0};
constexpr KivUnitRatio kDegree{180.0, std::numbers::pi};
constexpr KivUnitRatio kGrade{200.0, std::numbers::pi};

constexpr KivControlUnit kUnits[] = {
    {KivDlgUnitNone, KivDlgMagnitudeNone, "", kSame, Decimal, 0, "", ""},
    {KivDlgUnitRadian, kAngle, "RADIAN", kSame, Decimal, 0, " rad", "rad radians"},
    {KivDlgUnitDegree, kAngle, "DEGREE", kDegree, Decimal, 0, "°", "° deg degrees"},
    {KivDlgUnitGrade, kAngle, "GRADE", kGrade, Decimal, 0, " gr", "gr grad gon grades"},
    {KivDlgUnitMeter, kLength, "METER", kSame, Decimal, 0, " m", "m metre metres meters"},
    {KivDlgUnitMillimeter, kLength, "MM", kMilli, Decimal, 0, " mm",
     "millimetre millimetres millimeter millimeters"},
    {KivDlgUnitCentimeter, kLength, "CM", kCenti, Decimal, 0, " cm",
     "centimetre centimetres centimeter centimeters"},
    {KivDlgUnitKilometer, kLength, "KM", kKilo, Decimal, 0, " km",
     "kilometre kilometres kilometer kilometers"},
    {KivDlgUnitInch, kLength, "INCH", kInch, Decimal, 0, " in", "in inches \""},
    {KivDlgUnitFoot, kLength, "FOOT", kFoot, Decimal, 0, " ft", "ft feet '"},
    {KivDlgUnitFeetInchOver64, kLength, "F_I_F64", kInch, FeetInchFraction, 64, "", "ft-in-64"},
    {KivDlgUnitFeetInchOver16, kLength, "F_I_F16", kInch, FeetInchFraction, 16, "", "ft-in-16"},
    {KivDlgUnitFeetDecimalInch, kLength, "F_I_DEC", kInch, FeetDecimalInches, 0, "", "ft-in"},
    {KivDlgUnitSecond, KivDlgMagnitudeTime, "SECOND", kSame, Decimal, 0, " s", "s sec seconds"},
};

constexpr char Lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

constexpr bool SameWord(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return Lower(a) == Lower(b); });
}

// The first word of the text, which loses it; empty at its end.
constexpr std::string_view TakeWord(std::string_view& text)
{
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

constexpr bool Calls(const KivControlUnit& unit, std::string_view word)
{
    if (word.empty()) return false;
    if (SameWord(unit.name, word)) return true;
    std::string_view words = unit.words;
    while (!words.empty())
        if (SameWord(TakeWord(words), word)) return true;
    return false;
}

constexpr bool EveryWordMeansOneUnit()
{
    const auto units = [](std::string_view word) {
        return std::count_if(std::begin(kUnits), std::end(kUnits),
                             [word](const KivControlUnit& unit) { return Calls(unit, word); });
    };
    for (const KivControlUnit& unit : kUnits) {
        if (units(unit.name) > 1) return false;
        std::string_view words = unit.words;
        while (!words.empty())
            if (units(TakeWord(words)) != 1) return false;
    }
    return true;
}
static_assert(EveryWordMeansOneUnit());

template <class Condition> const KivControlUnit* FirstUnit(Condition condition)
{
    const auto* const found = std::find_if(std::begin(kUnits), std::end(kUnits), condition);
    return found == std::end(kUnits) ? nullptr : found;
}

} // namespace

bool KivControlUnit::IsCalled(std::string_view word) const
{
    return Calls(*this, word);
}

const KivControlUnit& KivControlUnit::Of(KivDlgUnit number)
{
    const KivControlUnit* const unit =
        FirstUnit([number](const KivControlUnit& u) { return u.number == number; });
    return unit ? *unit : kUnits[0];
}

const KivControlUnit* KivControlUnit::Named(std::string_view name, KivDlgMagnitude magnitude)
{
    return FirstUnit([=](const KivControlUnit& u) { return u.magnitude == magnitude && u.name == name; });
}

const KivControlUnit* KivControlUnit::Find(std::string_view word)
{
    return FirstUnit([word](const KivControlUnit& u) { return u.IsCalled(word); });
}

std::span<const KivControlUnit> KivControlUnit::All()
{
    return kUnits;
}

#include "Sheet/SheetRuler.h"

#include "Common/NativeText.h"
#include "Parameter/KivDecimal.h"
#include "Parameter/KivMeasure.h"
#include "Sheet/SheetUnit.h"

#include <algorithm>
#include <cmath>

namespace {

struct Steps {
    double number; // in the unit, from one number to the next
    int parts;     // marks between them
};

// Feet and inches count in halves and dozens.
constexpr Steps kInches[] = {{1.0 / 16.0, 1}, {0.25, 4}, {0.5, 8},  {1.0, 8},  {3.0, 6},
                             {6.0, 6},        {12.0, 4}, {24.0, 4}, {60.0, 5}, {120.0, 10}};
constexpr double kFinest = 4.0; // pixels between marks

Steps StepsFor(const KivControlUnit& unit, double pixelsPerUnit, double labelPixels)
{
    const double wanted = labelPixels / pixelsPerUnit;
    if (unit.notation != KivNotation::Decimal) {
        for (const Steps& steps : kInches)
            if (steps.number >= wanted) return steps;
        return {120.0 * std::ceil(wanted / 120.0), 10};
    }
    const double decade = std::pow(10.0, std::floor(std::log10(wanted)));
    if (2.0 * decade >= wanted) return {2.0 * decade, 10};
    if (5.0 * decade >= wanted) return {5.0 * decade, 10};
    return {10.0 * decade, 10};
}

QString Label(double number, const KivControlUnit& unit)
{
    if (unit.notation == KivNotation::Decimal) return QString::fromStdString(KivPrintDecimal(number, 6));
    return ToQt(KivMeasure::Print(unit.ToStored(number), unit.number, 4));
}

} // namespace

std::vector<SheetRuler::Mark> SheetRuler::Marks(double from, double to, double pixelsPerMm,
                                                double labelPixels)
{
    const KivControlUnit& unit = SheetUnit::Length();
    const double mmPerUnit = unit.ToStored(1.0) * 1000.0;
    const Steps steps = StepsFor(unit, pixelsPerMm * mmPerUnit, labelPixels);
    int parts = steps.parts;
    const double numberPixels = steps.number * mmPerUnit * pixelsPerMm;
    while (parts > 1 && numberPixels / parts < kFinest) parts = parts % 2 == 0 ? parts / 2 : 1;

    const double step = steps.number / parts;
    const double first = std::ceil(from / mmPerUnit / step), last = std::floor(to / mmPerUnit / step);
    if (!(last - first < 1.0e5)) return {}; // a ruler longer than any screen

    std::vector<Mark> marks;
    for (auto i = static_cast<long long>(first); i <= static_cast<long long>(last); ++i) {
        const double number = static_cast<double>(i) * step;
        const bool isNumber = i % parts == 0;
        const bool isHalf = parts % 2 == 0 && i % (parts / 2) == 0;
        marks.push_back({number * mmPerUnit,
                         isNumber ? 0
                         : isHalf ? 1
                                  : 2,
                         isNumber ? Label(number, unit) : QString()});
    }
    return marks;
}

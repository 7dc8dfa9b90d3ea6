#include "Sheet/SheetGrid.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kTolerance = 1.0e-9; // of a step

// The smallest of 1, 2, 5, 10, 20, 50, … that is not below the number.
double RoundStep(double number)
{
    if (number <= 1.0) return 1.0;
    const double decade = std::pow(10.0, std::floor(std::log10(number)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * decade >= number) return factor * decade;
    return 10.0 * decade;
}

} // namespace

std::vector<SheetGrid::Line> SheetGrid::Lines(double from, double to, double pixelsPerMm) const
{
    if (!(_spacing > 0.0) || !(to > from) || !(pixelsPerMm > 0.0)) return {};
    const double distance = _spacing * pixelsPerMm;
    const bool graduated = distance / _parts >= kClosest;
    const double step = graduated ? _spacing / _parts : _spacing * RoundStep(kClosest / distance);
    // The tolerance keeps a line that rounding put just beyond an edge.
    const double first = std::ceil(from / step - kTolerance), last = std::floor(to / step + kTolerance);
    if (!std::isfinite(step) || !std::isfinite(first)) return {}; // not even the thinning is a number

    std::vector<Line> lines;
    for (auto i = static_cast<long long>(first); i <= static_cast<long long>(last); ++i)
        lines.push_back({static_cast<double>(i) * step, !graduated || i % _parts == 0});
    return lines;
}

double SheetGrid::Nearest(double position, double length) const
{
    const double within = std::clamp(position, 0.0, length);
    const double step = _spacing / _parts;
    const double last = std::floor(length / step + kTolerance);
    if (!(step > 0.0) || !std::isfinite(last)) return within;
    return std::min(std::round(within / step), last) * step;
}

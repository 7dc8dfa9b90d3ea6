#include "Common/SheetColors.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kReadable = 4.5; // what small text needs; lines are as thin
constexpr double kGraduation = 0.22;

QColor Mixed(const QColor& from, const QColor& to, double part)
{
    const auto mix = [part](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * part)); };
    return QColor(mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue()));
}

double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

SheetColors::SheetColors(const QColor& sheet, bool graduated) : _sheet(sheet), _end(sheet)
{
    const bool isDark = Contrast(sheet, Qt::white) > Contrast(sheet, Qt::black);
    _ink = isDark ? Qt::white : Qt::black;
    if (!graduated) return;
    // Away from the ink where there is room, so that lines do not fade; black and white have only one way.
    const QColor away = isDark ? Qt::black : Qt::white;
    _end = Mixed(sheet, Contrast(sheet, away) < 1.6 ? _ink : away, kGraduation);
}

QBrush SheetColors::Surface(double top, double bottom) const
{
    if (_end == _sheet) return _sheet;
    QLinearGradient gradient(0.0, top, 0.0, bottom);
    gradient.setColorAt(0.0, _sheet);
    gradient.setColorAt(1.0, _end);
    return gradient;
}

QColor SheetColors::Shade(double strength) const
{
    return Mixed(_sheet, _ink, strength);
}

QColor SheetColors::Veil(double strength) const
{
    QColor veil = _ink;
    veil.setAlphaF(static_cast<float>(strength));
    return veil;
}

QColor SheetColors::Accent(const QColor& wanted) const
{
    for (double part = 0.0; part < 1.0; part += 0.1)
        if (const QColor line = Mixed(wanted, _ink, part); WorstContrast(line) >= kReadable) return line;
    return _ink;
}

double SheetColors::WorstContrast(const QColor& line) const
{
    return std::min(Contrast(line, _sheet), Contrast(line, _end));
}

double SheetColors::Contrast(const QColor& one, const QColor& other)
{
    const double a = Luminance(one) + 0.05, b = Luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

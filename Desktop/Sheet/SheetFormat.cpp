#include "Sheet/SheetFormat.h"

#include <algorithm>

namespace {

constexpr SheetFormat kFormats[] = {
    {"A0", 1189.0, 841.0}, {"A1", 841.0, 594.0},     {"A2", 594.0, 420.0},     {"A3", 420.0, 297.0},
    {"A4", 297.0, 210.0},  {"ANSI B", 431.8, 279.4}, {"ANSI C", 558.8, 431.8}, {"ANSI D", 863.6, 558.8},
};
constexpr std::size_t kA3 = 3;

} // namespace

std::span<const SheetFormat> SheetFormat::All()
{
    return kFormats;
}

const SheetFormat& SheetFormat::Named(const QString& name)
{
    const auto* const found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                           [&](const SheetFormat& f) { return name == f.name; });
    return found == std::end(kFormats) ? kFormats[kA3] : *found;
}

QSizeF SheetFormat::Size(bool isLandscape) const
{
    return isLandscape ? QSizeF(longSide, shortSide) : QSizeF(shortSide, longSide);
}

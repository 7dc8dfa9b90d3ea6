#include "Sheet/SheetLayout.h"

#include "Sheet/SheetPart.h"

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

SheetLayout::SheetLayout(QSizeF sheet)
{
    const double width = sheet.width(), height = sheet.height();
    const bool isLandscape = width > height;
    const double margin = 10.0;
    border = QRectF(margin, margin, width - 2.0 * margin, height - 2.0 * margin);

    // How large the sheet is beside an A3 one, for which the pieces are measured.
    const double size = std::min(std::max(width, height) / 420.0, std::min(width, height) / 297.0);
    viewScale = size > 1.85 ? 2.0 : size > 0.9 ? 1.0 : 0.5;

    const QSizeF block = QSizeF(132.0, 32.0) * std::clamp(size, 0.7, 1.6);
    titleBlock = QRectF(QPointF(border.right() - block.width(), border.top()), block);

    const double detailWidth = width * (isLandscape ? 0.27 : 0.36);
    const QSizeF detailSize(detailWidth, detailWidth * 0.66);
    const double gap = 6.0;
    detail = QRectF(
        QPointF(border.right() - gap - detailSize.width(), border.bottom() - gap - detailSize.height()),
        detailSize);

    viewCenter = isLandscape ? QPointF(width * 0.38, height * 0.54) : QPointF(width * 0.5, height * 0.5);
    // Where the view leaves room even when it is turned on its side.
    sketchCenter = isLandscape ? QPointF(width * 0.81, height * 0.42) : QPointF(width * 0.31, height * 0.8);
}

QRectF SheetLayout::ViewFrame() const
{
    const QRectF part = SheetPart::Extent();
    return {part.topLeft() * viewScale, part.size() * viewScale};
}

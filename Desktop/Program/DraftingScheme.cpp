#include "Program/DraftingScheme.h"

#include "Native/IndicatorStyle.h"

#include <QApplication>
#include <QPalette>

namespace {

struct Tones {
    QColor window, base, alternate, button, text, dim, highlight, highlightedText, link;
};

QPalette PaletteOf(const Tones& tones)
{
    QPalette palette(tones.button, tones.window); // its bevels are derived from these
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, tones.alternate);
    palette.setColor(QPalette::ToolTipBase, tones.base);
    palette.setColor(QPalette::Link, tones.link);
    palette.setColor(QPalette::PlaceholderText, tones.dim);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, tones.text);
        palette.setColor(QPalette::Disabled, role, tones.dim);
    }
    palette.setColor(QPalette::Highlight, tones.highlight);
    palette.setColor(QPalette::HighlightedText, tones.highlightedText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.dim);
    return palette;
}

} // namespace

void ApplyScheme(DraftingScheme scheme)
{
    if (scheme == DraftingScheme::System) {
        // A desktop's own style knows what its colors need.
        if (QApplication::style()->name() == u"fusion") QApplication::setStyle(new IndicatorStyle);
        return;
    }
    static constexpr QColor kWhite(255, 255, 255);
    const bool isDark = scheme == DraftingScheme::Dark;
    // Fusion draws edges darker than the window: it must not be too dark itself, or they are not seen.
    const Tones dark{{60, 63, 68},    {34, 36, 40},   {42, 44, 49}, {74, 77, 83},   {234, 235, 237},
                     {150, 154, 160}, {49, 115, 194}, kWhite,       {110, 170, 240}};
    const Tones light{{240, 241, 243}, kWhite,         {246, 247, 249}, {233, 235, 238}, {28, 30, 33},
                      {128, 132, 138}, {38, 110, 190}, kWhite,          {20, 90, 170}};
    QApplication::setStyle(new IndicatorStyle);
    QApplication::setPalette(PaletteOf(isDark ? dark : light));
}

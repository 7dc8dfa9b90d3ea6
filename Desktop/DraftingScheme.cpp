#include "DraftingScheme.h"

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
    if (scheme == DraftingScheme::System) return;
    static constexpr QColor kWhite(255, 255, 255);
    const bool isDark = scheme == DraftingScheme::Dark;
    const Tones dark{{45, 47, 51},    {32, 34, 37},   {39, 41, 45}, {58, 61, 66},   {232, 233, 235},
                     {134, 138, 145}, {61, 132, 214}, kWhite,       {110, 170, 240}};
    const Tones light{{240, 241, 243}, kWhite,         {246, 247, 249}, {233, 235, 238}, {28, 30, 33},
                      {128, 132, 138}, {38, 110, 190}, kWhite,          {20, 90, 170}};
    QApplication::setStyle("Fusion");
    QApplication::setPalette(PaletteOf(isDark ? dark : light));
}

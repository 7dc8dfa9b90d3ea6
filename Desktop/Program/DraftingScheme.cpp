#include "Program/DraftingScheme.h"

#include "Common/SheetColors.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr double kTellable = 4.0;   // the shape of a control needs 3, and smoothing takes of it
constexpr qreal kRoundWidth = 1.25; // pixels; a thinner circle is all smoothing
constexpr double kDisabled = 2.0;   // gray, but not gone

// No stronger than needed: an empty box is nothing to look at.
QColor Rim(const QStyleOption& option)
{
    const double wanted = option.state & QStyle::State_Enabled ? kTellable : kDisabled;
    const SheetColors window(option.palette.color(QPalette::Window), false);
    double strength = 0.2;
    while (strength < 1.0 && SheetColors::Contrast(window.Shade(strength), window.Sheet()) < wanted)
        strength += 0.05;
    return window.Shade(std::min(strength, 1.0));
}

// Fusion with the rims of check boxes and radio buttons drawn so that an empty one can be told from the
// window: its own are a little darker than the window, which is lost on dark and on light ones.
class IndicatorStyle : public QProxyStyle {
public:
    IndicatorStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

void IndicatorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) return;
    const bool isRound = element == PE_IndicatorRadioButton;
    const qreal width = isRound ? kRoundWidth : 1.0, inside = width / 2.0;
    const QRectF rim = QRectF(option->rect).adjusted(inside, inside, -inside, -inside);
    painter->save();
    painter->setPen(QPen(Rim(*option), width));
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing, isRound);
    isRound ? painter->drawEllipse(rim) : painter->drawRect(rim);
    painter->restore();
}

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

#include "Program/DraftingScheme.h"

#include "Common/SheetColors.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

#include <algorithm>
#include <utility>

namespace {

constexpr double kTellable = 4.0;   // the shape of a control needs 3, and smoothing takes of it
constexpr qreal kRoundWidth = 1.25; // pixels; a thinner circle is all smoothing
constexpr double kDisabled = 2.0;   // gray, but not gone
constexpr double kStrong = 12.0;    // for who sees little
constexpr double kReadable = 3.1;   // a text that is gray: 3, and a rest for smoothing

// No stronger than needed: an empty box is nothing to look at.
QColor Shade(const QColor& surface, double wanted)
{
    const SheetColors window(surface, false);
    double strength = 0.2;
    while (strength < 1.0 && SheetColors::Contrast(window.Shade(strength), window.Sheet()) < wanted)
        strength += 0.05;
    return window.Shade(std::min(strength, 1.0));
}

QColor Rim(const QStyleOption& option, double wanted)
{
    return Shade(option.palette.color(QPalette::Window),
                 option.state & QStyle::State_Enabled ? wanted : std::min(wanted, kDisabled));
}

// Fusion with the rims of check boxes and radio buttons drawn so that an empty one can be told from the
// window: its own are a little darker than the window, which is lost on dark and on light ones. So are those
// of fields and buttons on a dark one.
class IndicatorStyle : public QProxyStyle {
public:
    // How far the edges of fields, buttons and groups stand out from the window; 0: as Fusion draws them.
    explicit IndicatorStyle(double edges = 0.0) : QProxyStyle(QStringLiteral("Fusion")), _edges(edges) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    void DrawEdge(const QStyleOption& option, const QRect& rectangle, QPainter& painter) const;

    double _edges;
};

void IndicatorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit || element == PE_PanelButtonCommand)
        DrawEdge(*option, option->rect, *painter);
    if (element == PE_FrameGroupBox) {
        // Fusion draws the frame below the line of the title.
        constexpr int kBelowTitle = 3;
        const int title =
            std::max(pixelMetric(PM_IndicatorHeight, option, widget), option->fontMetrics.height());
        DrawEdge(*option, option->rect.adjusted(0, title + kBelowTitle, 0, 0), *painter);
    }
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) return;
    const bool isRound = element == PE_IndicatorRadioButton;
    const qreal width = isRound ? kRoundWidth : 1.0, inside = width / 2.0;
    const QRectF rim = QRectF(option->rect).adjusted(inside, inside, -inside, -inside);
    painter->save();
    painter->setPen(QPen(Rim(*option, std::max(kTellable, _edges)), width));
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing, isRound);
    isRound ? painter->drawEllipse(rim) : painter->drawRect(rim);
    painter->restore();
}

void IndicatorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                        QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_SpinBox || control == CC_ComboBox) DrawEdge(*option, option->rect, *painter);
}

// The focus has a color of its own, which is not painted over.
void IndicatorStyle::DrawEdge(const QStyleOption& option, const QRect& rectangle, QPainter& painter) const
{
    if (_edges == 0.0 || option.state & State_HasFocus) return;
    painter.save();
    painter.setPen(QPen(Rim(option, _edges), 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(rectangle).adjusted(0.5, 0.5, -0.5, -0.5), 2.0, 2.0);
    painter.restore();
}

// What is gray is still read: who may not change a value wants to know it. A system's colors often forget it.
QPalette Readable(QPalette palette)
{
    constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> kTexts[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},
    };
    for (const auto& [text, surface] : kTexts) {
        const QColor below = palette.color(QPalette::Disabled, surface);
        if (SheetColors::Contrast(palette.color(QPalette::Disabled, text), below) < kReadable)
            palette.setColor(QPalette::Disabled, text, Shade(below, kReadable));
    }
    return palette;
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

constexpr QColor kWhite(255, 255, 255), kBlack(0, 0, 0);

// In the order of DraftingScheme, behind the system's: how edges stand out, and the tones. Fusion draws edges
// darker than the window: a dark one must not be too dark itself, or they are not seen.
const struct {
    double edges;
    Tones tones;
} kSchemes[] = {
    {0.0,
     {{240, 241, 243},
      kWhite,
      {246, 247, 249},
      {233, 235, 238},
      {28, 30, 33},
      {128, 132, 138},
      {38, 110, 190},
      kWhite,
      {20, 90, 170}}},
    {kDisabled,
     {{60, 63, 68},
      {34, 36, 40},
      {42, 44, 49},
      {74, 77, 83},
      {234, 235, 237},
      {150, 154, 160},
      {49, 115, 194},
      kWhite,
      {110, 170, 240}}},
    {kStrong,
     {kBlack,
      kBlack,
      {24, 24, 24},
      {32, 32, 32},
      kWhite,
      {170, 170, 170},
      {255, 214, 0},
      kBlack,
      {120, 210, 255}}},
};

} // namespace

void ApplyScheme(DraftingScheme scheme)
{
    if (scheme == DraftingScheme::System) {
        // A desktop's own style knows what its colors need.
        if (QApplication::style()->name() == u"fusion") QApplication::setStyle(new IndicatorStyle);
        QApplication::setPalette(Readable(QApplication::palette()));
        return;
    }
    const auto& [edges, tones] = kSchemes[static_cast<int>(scheme) - 1];
    QApplication::setStyle(new IndicatorStyle(edges));
    QApplication::setPalette(Readable(PaletteOf(tones)));
}

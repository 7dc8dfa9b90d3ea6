#include "Native/IndicatorStyle.h"

#include "Common/SheetColors.h"

#include <QPainter>
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

} // namespace

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

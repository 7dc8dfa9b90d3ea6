#pragma once

#include <QProxyStyle>

// Fusion with the rims of check boxes and radio buttons drawn so that an empty one can be told from the
// window: its own are a little darker than the window, which is lost on dark and on light ones.
class IndicatorStyle : public QProxyStyle {
public:
    IndicatorStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

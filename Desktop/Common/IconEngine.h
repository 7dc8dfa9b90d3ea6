#pragma once

#include <QColor>
#include <QIcon>
#include <QIconEngine>

#include <functional>

// An icon that is drawn anew wherever it is shown, so that it is crisp at every scale and follows the
// palette.
class IconEngine final : public QIconEngine {
public:
    // Draws within the rectangle, in sizes relative to it; ink is the color of text on that background.
    using Draw = std::function<void(QPainter& painter, const QRectF& rectangle, const QColor& ink)>;
    enum class Background { Surface, List };

    static QIcon Icon(Draw draw, Background background = Background::Surface);

    void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override { return new IconEngine(*this); }

private:
    IconEngine(Draw draw, Background background) : _draw(std::move(draw)), _background(background) {}

    Draw _draw;
    Background _background;
};

#include "Common/IconEngine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

QIcon IconEngine::Icon(Draw draw, Background background)
{
    return QIcon(new IconEngine(std::move(draw), background));
}

void IconEngine::paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode, QIcon::State)
{
    // Some styles draw the chosen line of a list in the mode of a hovered button.
    const bool chosen = mode == QIcon::Selected || (_background == Background::List && mode == QIcon::Active);
    const QPalette palette = QGuiApplication::palette();
    const QColor ink =
        palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                      chosen ? QPalette::HighlightedText
                             : (_background == Background::List ? QPalette::Text : QPalette::WindowText));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    _draw(*painter, QRectF(rectangle), ink);
    painter->restore();
}

QPixmap IconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
}

#pragma once

#include <QWidget>

#include <cstdlib>

namespace TestPicture {

inline QImage Take(QWidget& widget, int scale = 1)
{
    QImage image(widget.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    widget.render(&image);
    return image;
}

// How much of a picture is painted in a color, or nearly so.
inline int Count(const QImage& image, const QColor& color, int tolerance = 1)
{
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor at = image.pixelColor(x, y);
            pixels += std::abs(at.red() - color.red()) + std::abs(at.green() - color.green()) +
                          std::abs(at.blue() - color.blue()) <
                      tolerance;
        }
    return pixels;
}

} // namespace TestPicture

#include "Sheet/SheetText.h"

#include "Sheet/SheetCamera.h"

#include <QPainter>
#include <cmath>

void SheetText::Paint(QPainter& painter, const SheetCamera& camera, QPointF at, const QString& text) const
{
    constexpr double kSmallest = 5.0, kLargest = 2000.0; // pixels
    const double pixels = height * camera.PixelsPerMm();
    if (pixels < kSmallest || pixels > kLargest ||
        !camera.Area().adjusted(-pixels * 20.0, -pixels * 2.0, pixels * 20.0, pixels * 2.0).contains(at))
        return;
    painter.save();
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(std::lround(pixels)));
    painter.setFont(font);
    painter.translate(at);
    painter.rotate(-angle);
    const double wide = pixels * 40.0, high = pixels * 2.0;
    QRectF box(0.0, 0.0, wide, high);
    box.moveLeft(alignment & Qt::AlignLeft ? 0.0 : -wide / 2.0);
    box.moveTop(alignment & Qt::AlignBottom ? -high : -high / 2.0);
    painter.drawText(box, static_cast<int>(alignment), text);
    painter.restore();
}

#include "Sheet/SheetCamera.h"

#include <algorithm>
#include <cmath>

void SheetCamera::SetSheet(QSizeF millimeters)
{
    _sheet = millimeters;
    Fit();
}

void SheetCamera::SetArea(const QRectF& pixels)
{
    _area = pixels;
    if (_fits) Fit();
}

void SheetCamera::SetResolution(double pixelsPerMm)
{
    if (!(pixelsPerMm > 0.0) || !std::isfinite(pixelsPerMm)) return;
    _scale *= pixelsPerMm / _resolution;
    _resolution = pixelsPerMm;
    if (_fits) Fit();
}

void SheetCamera::Fit()
{
    constexpr double kMargin = 0.94;
    _center = QPointF(_sheet.width() / 2.0, _sheet.height() / 2.0);
    _scale = kMargin * std::min(_area.width() / _sheet.width(), _area.height() / _sheet.height());
    Bound();
    _fits = true;
}

void SheetCamera::ZoomBy(double factor, QPointF around)
{
    if (!(factor > 0.0) || !std::isfinite(factor)) return;
    const QPointF fixed = ToSheet(around);
    _scale *= factor;
    Bound();
    const QPointF moved = fixed - ToSheet(around);
    _center += moved;
    Bound();
    _fits = false;
}

void SheetCamera::PanBy(QPointF pixels)
{
    _center += QPointF(-pixels.x(), pixels.y()) / _scale;
    Bound();
    _fits = false;
}

void SheetCamera::Bound()
{
    _scale = std::clamp(_scale, kSmallest * _resolution, kLargest * _resolution);
    _center.setX(std::clamp(_center.x(), 0.0, _sheet.width()));
    _center.setY(std::clamp(_center.y(), 0.0, _sheet.height()));
}

QPointF SheetCamera::ToWindow(QPointF millimeters) const
{
    const QPointF offset = millimeters - _center;
    return _area.center() + QPointF(offset.x(), -offset.y()) * _scale;
}

QPointF SheetCamera::ToSheet(QPointF pixels) const
{
    const QPointF offset = (pixels - _area.center()) / _scale;
    return _center + QPointF(offset.x(), -offset.y());
}

QTransform SheetCamera::Transform() const
{
    const QPointF origin = ToWindow({0.0, 0.0});
    return QTransform(_scale, 0.0, 0.0, -_scale, origin.x(), origin.y());
}

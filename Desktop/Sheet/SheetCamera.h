#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

// Which part of a sheet a window shows, and how large. The sheet lies from (0, 0), its lower left corner, in
// mm with y up; the window is in pixels with y down.
class SheetCamera {
public:
    void SetSheet(QSizeF millimeters);
    // The part of the window in which the sheet is shown.
    void SetArea(const QRectF& pixels);
    // How many pixels make a millimeter on the screen when the zoom is 1.
    void SetResolution(double pixelsPerMm);

    QSizeF Sheet() const { return _sheet; }
    const QRectF& Area() const { return _area; }
    double Zoom() const { return _scale / _resolution; }
    double PixelsPerMm() const { return _scale; }
    double Resolution() const { return _resolution; }

    // All of the sheet, with a margin. A camera that fits goes on fitting until it is moved.
    void Fit();
    bool Fits() const { return _fits; }
    // By a factor around a point of the window that stays where it is; bounded.
    void ZoomBy(double factor, QPointF around);
    void ZoomTo(double zoom) { ZoomBy(zoom / Zoom(), _area.center()); }
    // By so many pixels; the middle of the window never leaves the sheet.
    void PanBy(QPointF pixels);

    QPointF ToWindow(QPointF millimeters) const;
    QPointF ToSheet(QPointF pixels) const;
    QTransform Transform() const;

    static constexpr double kSmallest = 0.02, kLargest = 64.0;

private:
    void Bound();

    QSizeF _sheet{420.0, 297.0};
    QRectF _area{0.0, 0.0, 100.0, 100.0};
    QPointF _center{210.0, 148.5};
    double _resolution = 96.0 / 25.4;
    double _scale = 1.0; // pixels a millimeter
    bool _fits = true;
};

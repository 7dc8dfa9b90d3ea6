#pragma once

#include "Sheet/SheetCamera.h"
#include "Sheet/SheetLayout.h"
#include "Sheet/SheetMarkers.h"
#include "Sheet/SheetSettings.h"
#include "Sheet/SheetStyle.h"

#include <QPixmap>
#include <QWidget>
#include <optional>

class SheetPicture;

// The window onto the sheet: shows it as the settings say, and lets a hand pan, zoom, point at positions and
// turn the sample view.
//
// Keys: arrows turn the selected view (left, right) or scroll; Ctrl+arrows always scroll; Enter selects the
// view, Escape lets it go.
class SheetView : public QWidget {
    Q_OBJECT

public:
    // The settings are to outlive the view.
    explicit SheetView(const SheetSettings& settings, QWidget* parent = nullptr);
    ~SheetView() override;

    const SheetCamera& Camera() const { return _camera; }
    const SheetStyle& Style() const { return _settings.Style(); }
    const SheetSketchStyle& Sketch() const { return _settings.Sketch(); }

    void SetFormat(const SheetFormat& format, bool isLandscape);
    QString FormatName() const { return _format; }

    const SheetLook& Look() const { return _look; }
    // While the background is shown the view cannot be selected.
    void SetLook(const SheetLook& look);

    // Degrees, anticlockwise, 0 up to 360.
    double Rotation() const { return _rotation; }
    void SetRotation(double degrees);

    bool IsViewSelected() const { return _selected; }
    void SelectView(bool selected);

    void ZoomIn() { ZoomBy(1.25); }
    void ZoomOut() { ZoomBy(0.8); }
    void ZoomToFit();
    void ZoomTo(double zoom);

    // The middle of the handle that turns the view, in the window.
    QPointF Handle() const;
    // The frame of the sketch, in the window.
    QRectF SketchFrame() const;

    QSize sizeHint() const override { return {900, 640}; }
    QSize minimumSizeHint() const override { return {240, 180}; }

signals:
    // Where the cursor points at on the sheet, in words; empty when it points at none.
    void PositionChanged(const QString& text);
    void RotationChanged(double degrees);
    void ZoomChanged(double zoom);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    enum class Hand { Free, Panning, Turning };

    SheetPicture Picture() const;
    void Arrange();
    void Redraw();
    void ZoomBy(double factor);
    void Moved();
    void PointAt(std::optional<QPointF> window);
    std::optional<QPointF> SnappedPosition() const;
    void ShowCursor();
    bool IsOnHandle(QPointF window) const;
    double AngleOf(QPointF window) const;
    void PaintLayer();
    void PaintOverlay(QPainter& painter) const;

    const SheetSettings& _settings;
    SheetCamera _camera;
    QString _format;
    SheetLook _look;
    double _rotation = 0.0;
    bool _selected = true;
    bool _showsFocus = false; // for those who move by the keyboard

    Hand _hand = Hand::Free;
    bool _spaceHeld = false;
    QPointF _grip;             // where the hand was last, in the window
    double _gripAngle = 0.0;   // between the hand and the view while it turns
    double _angleBefore = 0.0; // to go back to when the turn is given up
    std::optional<QPointF> _cursor;

    QPixmap _layer; // everything that does not follow the cursor
    int _unitListener;
};

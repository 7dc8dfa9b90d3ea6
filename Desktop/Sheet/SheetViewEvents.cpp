#include "Sheet/SheetPicture.h"
#include "Sheet/SheetRotation.h"
#include "Sheet/SheetView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

// How the sheet's window answers the mouse and the keyboard.

namespace {

constexpr double kScroll = 48.0; // pixels for a key

// The direction that an arrow key moves the window's content away from; null for other keys.
QPointF ScrollFor(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {kScroll, 0.0};
    case Qt::Key_Right:
        return {-kScroll, 0.0};
    case Qt::Key_Up:
        return {0.0, kScroll};
    case Qt::Key_Down:
        return {0.0, -kScroll};
    default:
        return {};
    }
}

} // namespace

bool SheetView::event(QEvent* event)
{
    // A pinch on a touch pad zooms around the fingers.
    if (event->type() == QEvent::NativeGesture) {
        const auto& gesture = static_cast<const QNativeGestureEvent&>(*event);
        if (gesture.gestureType() == Qt::ZoomNativeGesture) {
            _camera.ZoomBy(1.0 + gesture.value(), gesture.position());
            Moved();
            return true;
        }
    }
    // A key that the view has a use for is not taken for a shortcut of the window.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Space || (key.key() == Qt::Key_Escape && _hand == Hand::Turning))
            event->accept();
    }
    return QWidget::event(event);
}

void SheetView::resizeEvent(QResizeEvent*)
{
    Arrange();
}

void SheetView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange)
        Arrange();
    QWidget::changeEvent(event);
}

void SheetView::mousePressEvent(QMouseEvent* event)
{
    const QPointF at = event->position();
    PointAt(at);
    if (event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && _spaceHeld)) {
        _hand = Hand::Panning;
        _grip = at;
    } else if (event->button() == Qt::LeftButton && IsOnHandle(at)) {
        _hand = Hand::Turning;
        _gripAngle = AngleOf(at) - _rotation;
        _angleBefore = _rotation;
    } else if (event->button() == Qt::LeftButton) {
        const QPolygonF frame = Picture().ViewFrame();
        SelectView(frame.containsPoint(at, Qt::OddEvenFill));
    }
    ShowCursor();
    update();
}

void SheetView::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF at = event->position();
    if (_hand == Hand::Panning) {
        _camera.PanBy(at - _grip);
        _grip = at;
        Moved();
    } else if (_hand == Hand::Turning) {
        SetRotation(SheetRotation::Dragged(AngleOf(at) - _gripAngle, Style(),
                                           event->modifiers().testFlag(Qt::ShiftModifier)));
    }
    PointAt(at);
    ShowCursor();
}

void SheetView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->buttons() != Qt::NoButton) return;
    _hand = Hand::Free;
    ShowCursor();
    update();
}

void SheetView::wheelEvent(QWheelEvent* event)
{
    // 120 is one notch; touch pads send small parts of it, so that the zoom is smooth there.
    const double notches = event->angleDelta().y() / 120.0;
    if (notches == 0.0) return;
    _camera.ZoomBy(std::pow(1.2, std::clamp(notches, -10.0, 10.0)), event->position());
    Moved();
    PointAt(event->position());
}

void SheetView::keyPressEvent(QKeyEvent* event)
{
    const bool isControl = event->modifiers().testFlag(Qt::ControlModifier);
    const QPointF scroll = ScrollFor(event->key());
    if (scroll.x() != 0.0 && _selected && !isControl) {
        SetRotation(SheetRotation::Stepped(_rotation, Style(), event->key() == Qt::Key_Left ? 1 : -1));
    } else if (!scroll.isNull()) {
        _camera.PanBy(scroll);
        Moved();
    } else if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat()) _spaceHeld = true;
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        SelectView(true);
    } else if (event->key() == Qt::Key_Escape && _hand == Hand::Turning) {
        _hand = Hand::Free;
        SetRotation(_angleBefore);
    } else if (event->key() == Qt::Key_Escape && _selected) {
        SelectView(false);
    } else if (event->key() == Qt::Key_Home && _selected) {
        SetRotation(0.0);
    } else {
        QWidget::keyPressEvent(event);
        return;
    }
    ShowCursor();
    update();
}

void SheetView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->isAutoRepeat()) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    _spaceHeld = false;
    ShowCursor();
    update();
}

void SheetView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    _showsFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

// The release of a key that is held while the focus goes elsewhere never comes here.
void SheetView::focusOutEvent(QFocusEvent* event)
{
    _spaceHeld = false;
    QWidget::focusOutEvent(event);
    ShowCursor();
    update();
}

void SheetView::leaveEvent(QEvent*)
{
    PointAt(std::nullopt);
}

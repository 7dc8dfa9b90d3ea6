#pragma once

#include <QRect>

#include <functional>

class QWidget;

// Where windows stand on their screens. All geometries are those of the content, as QWidget::geometry; the
// frame that the desktop puts around it has its room as well. Until a window is shown, its frame counts as
// that of the window that it belongs to.
namespace WindowPlace {

// The same moved, and made smaller where it has to be, so that the frame too lies within the free part of the
// screen around its middle; of the window's own screen where no screen shows the middle.
QRect OnScreen(const QWidget& window, const QRect& wanted);

// A geometry of that size with its frame beside another widget: after it in reading direction, before it,
// below or above, whichever the screen has room for first; where none has, whichever covers least of it.
QRect Beside(const QWidget& window, const QSize& size, const QWidget& other);

// Desktops tell a window's frame only when they have shown it: once they have, the window is moved and made
// smaller as in OnScreen, whenever it is shown.
void KeepOnScreen(QWidget& window);

// Calls it once, as soon as the window, which was shown, is seen and stands where its desktop has put it;
// never when the window goes before.
void WhenPlaced(QWidget& window, std::function<void()> then);

} // namespace WindowPlace

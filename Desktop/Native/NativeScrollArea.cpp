#include "Native/NativeScrollArea.h"

#include <QApplication>

NativeScrollArea::NativeScrollArea(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    // By Tab the area sees to it itself, but not by the letter of a label. What is clicked is seen already,
    // and must not move away under the pointer.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && widget() && widget()->isAncestorOf(now) && !QApplication::mouseButtons())
            ensureWidgetVisible(now);
    });
}

#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

// What a user's hand does beyond what QTest knows.
namespace TestHand {

inline void Wheel(QWidget* over)
{
    const QPointF position = over->rect().center();
    QWheelEvent event(position, over->mapToGlobal(position), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // As from a real wheel: only those reach the parents of a field that ignores them.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(over, &event);
}

// Moves the pointer with its left button down.
inline void Drag(QWidget* over, const QPointF& to, Qt::KeyboardModifiers keys = {})
{
    QMouseEvent move(QEvent::MouseMove, to, over->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(over, &move);
}

inline void TypeOver(QWidget* field, const char* text)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
}

// On the indicator of a button with one, which its title does not reach.
inline void ClickIndicator(QWidget* button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

} // namespace TestHand

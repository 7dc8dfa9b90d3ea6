#include "Common/Announcement.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace {

// What gets the focus is said first, and silences what was said before.
constexpr int kAfterFocus = 150; // milliseconds

// Nothing that is seen: a notification of the window, which screen readers say when it appears.
class Notification : public QAccessibleInterface {
public:
    Notification(QWidget& window, const QString& text) : _window(&window), _text(text) {}

    bool isValid() const override { return _window; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return _window ? _window->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override
    {
        return _window ? QAccessible::queryAccessibleInterface(_window) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? _text : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return _window ? _window->geometry() : QRect(); }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

private:
    QPointer<QWidget> _window;
    QString _text;
};

} // namespace

void Announcement::Say(const QWidget& widget, const QString& text)
{
    if (text.isEmpty() || !QAccessible::isActive()) return;
    // It is asked for its text later; the one before has been said by now.
    static QAccessible::Id last = 0;
    QWidget* const window = widget.window();
    QTimer::singleShot(kAfterFocus, window, [window, text] {
        if (last) QAccessible::deleteAccessibleInterface(last);
        QAccessibleInterface* const notification = new Notification(*window, text); // Qt owns it
        last = QAccessible::registerAccessibleInterface(notification);
        QAccessibleEvent appears(notification, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&appears);
    });
}

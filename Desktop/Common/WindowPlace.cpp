#include "Common/WindowPlace.h"

#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

constexpr int kLookAgain = 50; // milliseconds
constexpr int kLooks = 20;     // a desktop that puts no frame around a window says nothing

QMargins Frame(const QWidget& window)
{
    if (window.isVisible() && window.windowHandle()) return window.windowHandle()->frameMargins();
    return window.parentWidget() ? Frame(*window.parentWidget()->window()) : QMargins();
}

QRect Moved(QRect frame, const QRect& free)
{
    frame.setSize(frame.size().boundedTo(free.size()));
    frame.moveLeft(std::max(free.left(), std::min(frame.left(), free.right() - frame.width() + 1)));
    frame.moveTop(std::max(free.top(), std::min(frame.top(), free.bottom() - frame.height() + 1)));
    return frame;
}

int Covered(const QRect& one, const QRect& other)
{
    const QRect common = one & other;
    return common.width() * common.height();
}

// Looks for a while after each showing: the desktop puts a frame around the window then, and may move it.
class Keeper : public QObject {
public:
    explicit Keeper(QWidget& window) : QObject(&window), _window(window)
    {
        _timer.setInterval(kLookAgain);
        connect(&_timer, &QTimer::timeout, this, [this] { Look(); });
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched == &_window) {
            _looks = kLooks;
            _timer.start();
            // An exposure tells of the frame earlier than the timer would.
            if (QWindow* handle = _window.windowHandle()) handle->installEventFilter(this);
        } else if (event->type() == QEvent::Expose) {
            QTimer::singleShot(0, this, [this] { Look(); });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void Look()
    {
        if (!_timer.isActive()) return; // from now on it stands where a person puts it
        if (--_looks <= 0) _timer.stop();
        if (!_window.isVisible()) return;
        // What does not fit even without a frame was made so.
        const QSize free = _window.screen()->availableGeometry().size();
        if (_window.size().boundedTo(free) != _window.size()) return;
        const QRect fitting = WindowPlace::OnScreen(_window, _window.geometry());
        if (fitting != _window.geometry()) _window.setGeometry(fitting);
    }

    QWidget& _window;
    QTimer _timer;
    int _looks = 0;
};

class Waiter : public QObject {
public:
    Waiter(QWidget& window, std::function<void()> then) : QObject(&window), _then(std::move(then))
    {
        if (window.windowHandle()->isExposed()) {
            Go();
        } else {
            window.windowHandle()->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose && _then) Go();
        return QObject::eventFilter(watched, event);
    }

private:
    void Go()
    {
        QTimer::singleShot(kLookAgain, this, [this, then = std::exchange(_then, nullptr)] {
            deleteLater();
            then();
        });
    }

    std::function<void()> _then;
};

} // namespace

QRect WindowPlace::OnScreen(const QWidget& window, const QRect& wanted)
{
    const QScreen* there = window.screen()->virtualSiblingAt(wanted.center());
    const QRect free = (there ? there : window.screen())->availableGeometry();
    const QMargins frame = Frame(window);
    return Moved(wanted.marginsAdded(frame), free).marginsRemoved(frame);
}

QRect WindowPlace::Beside(const QWidget& window, const QSize& size, const QWidget& other)
{
    const QRect free = other.screen()->availableGeometry();
    const QMargins margins = Frame(window);
    const QSize frame = size.grownBy(margins).boundedTo(free.size());
    const QRect avoided =
        other.isWindow() ? other.frameGeometry() : QRect(other.mapToGlobal(QPoint()), other.size());
    const QRect owner = other.window()->frameGeometry();
    const int top = owner.top();
    const QPoint right(avoided.right() + 1, top), left(avoided.left() - frame.width(), top);
    QPoint corners[] = {right, left, QPoint(avoided.left(), avoided.bottom() + 1),
                        QPoint(avoided.left(), avoided.top() - frame.height())};
    if (window.isRightToLeft()) std::swap(corners[0], corners[1]);
    const auto place = [&](const QPoint& corner) { return Moved(QRect(corner, frame), free); };
    const QPoint* best = std::min_element(std::begin(corners), std::end(corners), [&](QPoint a, QPoint b) {
        return Covered(place(a), avoided) < Covered(place(b), avoided);
    });
    return place(*best).marginsRemoved(margins);
}

void WindowPlace::KeepOnScreen(QWidget& window)
{
    new Keeper(window);
}

void WindowPlace::WhenPlaced(QWidget& window, std::function<void()> then)
{
    new Waiter(window, std::move(then));
}

#include "Common/DialogKeyboard.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

namespace {

constexpr int kLookAgain = 50; // milliseconds
constexpr int kLooks = 8;

// A desktop that was asked before it had seen the dialog go, goes its own way afterwards: some look again.
class Return : public QTimer {
public:
    explicit Return(QWidget& owner) : QTimer(&owner), _owner(owner)
    {
        owner.activateWindow();
        callOnTimeout(this, [this] { Look(); });
        start(kLookAgain);
    }

private:
    void Look()
    {
        // What is active here need not be so for the desktop yet.
        if (_owner.isVisible() && !QApplication::activeModalWidget()) _owner.activateWindow();
        if (++_looks >= kLooks || !_owner.isVisible()) deleteLater();
    }

    QWidget& _owner;
    int _looks = 0;
};

} // namespace

void DialogKeyboard::OpenAfterEvent(QDialog& dialog)
{
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&dialog] { GiveBack(dialog); });
    QMetaObject::invokeMethod(&dialog, &QDialog::open, Qt::QueuedConnection);
}

void DialogKeyboard::GiveBack(const QDialog& dialog)
{
    QWidget* const owner = dialog.parentWidget() ? dialog.parentWidget()->window() : nullptr;
    if (owner && owner->isVisible()) new Return(*owner);
}

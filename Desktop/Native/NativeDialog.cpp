#include "Native/NativeDialog.h"

#include "Common/DialogKeyboard.h"
#include "Common/NativeText.h"
#include "Common/WindowPlace.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativeBuilder.h"
#include "Native/NativePanel.h"
#include "Native/NativePiece.h"
#include "Native/NativeScrollArea.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace {

// Room for the words that explain a refused text.
constexpr int kLettersWide = 50;
constexpr int kLinesHigh = 7;

} // namespace

NativeDialog::NativeDialog(KivDialog& node, const OptionsMemory& memory, QWidget* owner)
    : QDialog(owner), NativePieceFor(node, this), _memory(memory),
      _memoryName(QString(node.IsA()) + "." + objectName()), _area(new NativeScrollArea(this)),
      _foot(new QHBoxLayout), _close(new QPushButton(WindowText("Close")))
{
    setSizeGripEnabled(true);
    auto* surface = new QWidget;
    NativeBuilder::Fill(node, *surface);
    _area->setWidget(surface);

    auto* const note = new QLabel(WindowText("CloseKeeps"));
    note->setWordWrap(true);
    _foot->addWidget(note, 1);
    _foot->addWidget(_close);
    _close->setAutoDefault(false);
    _close->setAccessibleDescription(note->text());
    connect(_close, &QPushButton::clicked, this, [this] { Close(Way::ByButton); });

    auto* all = new QVBoxLayout(this);
    all->addWidget(_area, 1);
    all->addLayout(_foot);
    TakeGeometry();
    WindowPlace::KeepOnScreen(*this);
}

void NativeDialog::ShowNode()
{
    setWindowTitle(ToQt(TreeNode()->GetSpokenTitle()));
    // What is said of the window must not be said of everything in it.
    setToolTip(QString());
}

QSize NativeDialog::SizeFor(const QSize& leastContent) const
{
    const QSize needed = _area->widget() ? _area->widget()->sizeHint() : QSize();
    const QSize content = needed.expandedTo(leastContent);
    const QSize foot(0, _foot->heightForWidth(content.width()) + std::max(layout()->spacing(), 0));
    return (content + foot).grownBy(layout()->contentsMargins());
}

QSize NativeDialog::sizeHint() const
{
    const QSize usual(kLettersWide * fontMetrics().averageCharWidth(),
                      kLinesHigh * fontMetrics().lineSpacing());
    return SizeFor(usual).boundedTo(screen()->availableGeometry().size());
}

void NativeDialog::Close(Way way)
{
    const QPointer<QWidget> self(this);
    QWidget* const refused = NativeField::CommitAll(*this);
    if (!self) return;
    if (refused) return refused->setFocus();
    if (!TreeNode()) return;
    way == Way::ByButton ? KivUserHand::Close(*TreeNode()) : KivUserHand::CloseWindow(*TreeNode());
}

void NativeDialog::closeEvent(QCloseEvent* event)
{
    Close(Way::OfTheDesktop);
    // Only what its owner has let go may be closed, as a program that ends does.
    event->setAccepted(!TreeNode() || !TreeNode()->IsShown() || TreeNode()->IsCondemned());
}

void NativeDialog::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous()) return;
    _memory.RememberWindow(_memoryName, geometry());
    DialogKeyboard::GiveBack(*this);
}

void NativeDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::HelpContents)) {
        NativePanel::OpenLongHelp(*this);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (_close->hasFocus()) _close->click();
    } else {
        QDialog::keyPressEvent(event);
    }
}

// Where it was the last time, if a screen still shows that, else beside its owner; large enough for what it
// has to show by now. Another window of the name that stands there is not covered: each is a title bar away.
void NativeDialog::TakeGeometry()
{
    const QRect remembered = _memory.Window(_memoryName);
    const QScreen* there = remembered.isValid() ? screen()->virtualSiblingAt(remembered.center()) : nullptr;
    const QRect free = (there ? there : parentWidget()->screen())->availableGeometry();
    // The desktop frames it as it has framed its owner, and lets no part of the frame leave the screen: asked
    // for without it, different places at an edge would become one.
    const QWidget& owner = *parentWidget();
    const QMargins margins(owner.geometry().left() - owner.frameGeometry().left(),
                           owner.geometry().top() - owner.frameGeometry().top(),
                           owner.frameGeometry().right() - owner.geometry().right(),
                           owner.frameGeometry().bottom() - owner.geometry().bottom());
    QRect wanted = there ? remembered : GeometryBeside(owner);
    wanted.setSize(wanted.size().expandedTo(SizeFor(QSize(0, 0))));
    QRect frame = wanted.marginsAdded(margins);
    frame.setSize(frame.size().boundedTo(free.size()));
    frame.moveLeft(std::max(free.left(), std::min(frame.left(), free.right() - frame.width() + 1)));
    frame.moveTop(std::max(free.top(), std::min(frame.top(), free.bottom() - frame.height() + 1)));

    const int step = std::max(style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this), margins.top());
    const auto others = owner.findChildren<QDialog*>(objectName(), Qt::FindDirectChildrenOnly);
    const auto isNear = [step](const QPoint& one, const QPoint& another) {
        return (one - another).manhattanLength() < step;
    };
    // One that was just opened has no frame yet.
    const auto covers = [&](const QDialog* other) {
        return other != this && other->isVisible() &&
               (isNear(other->frameGeometry().topLeft(), frame.topLeft()) ||
                isNear(other->geometry().topLeft(), frame.marginsRemoved(margins).topLeft()));
    };
    for (qsizetype i = 0; i < others.size() && std::any_of(others.begin(), others.end(), covers); ++i) {
        const bool hasRoom = frame.right() + step <= free.right();
        frame.translate(hasRoom ? step : -step, step);
        if (!free.contains(frame)) frame.moveTopLeft(free.topLeft());
    }
    setGeometry(frame.marginsRemoved(margins));
}

QRect NativeDialog::GeometryBeside(const QWidget& owner) const
{
    const QRect free = owner.screen()->availableGeometry(), window = owner.frameGeometry();
    const QSize size = sizeHint();
    const int after = window.right() + 1, before = window.left() - size.width();
    const bool fitsAfter = after + size.width() <= free.right(), fitsBefore = before >= free.left();
    const bool isBefore = isRightToLeft() ? fitsBefore : fitsBefore && !fitsAfter;
    return {QPoint(isBefore ? before : after, owner.y()), size};
}

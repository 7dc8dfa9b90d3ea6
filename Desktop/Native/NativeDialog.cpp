#include "Native/NativeDialog.h"

#include "Common/NativeText.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativeBuilder.h"
#include "Native/NativePanel.h"
#include "Native/NativePiece.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

#include <algorithm>

namespace {

// Room for the words that explain a refused text.
constexpr int kLettersWide = 50;
constexpr int kLinesHigh = 7;

} // namespace

NativeDialog::NativeDialog(KivDialog& node, const OptionsMemory& memory, QWidget* owner)
    : QDialog(owner), NativePieceFor(node, this), _memory(memory),
      _memoryName(QString(node.IsA()) + "." + objectName()), _area(new QScrollArea(this)),
      _buttons(new QDialogButtonBox(this))
{
    setSizeGripEnabled(true);
    _area->setFrameShape(QFrame::NoFrame);
    _area->setWidgetResizable(true);
    _area->setFocusPolicy(Qt::NoFocus); // its fields have it
    auto* surface = new QWidget;
    NativeBuilder::Fill(node, *surface);
    _area->setWidget(surface);

    // After the content, as Tab goes.
    _close = _buttons->addButton(WindowText("Close"), QDialogButtonBox::RejectRole);
    _close->setAutoDefault(false);
    // A click keeps the focus in the field whose text it enters, so that a refused one is not lost.
    _close->setFocusPolicy(Qt::TabFocus);
    connect(_close, &QPushButton::clicked, this, [this] { Close(Way::ByButton); });

    auto* all = new QVBoxLayout(this);
    all->addWidget(_area, 1);
    all->addWidget(_buttons);
    TakeGeometry();
}

NativeField* NativeDialog::Field() const
{
    return dynamic_cast<NativeField*>(focusWidget());
}

void NativeDialog::ShowNode()
{
    setWindowTitle(ToQt(TreeNode()->GetSpokenTitle()));
    // What is said of the window must not be said of everything in it.
    setToolTip(QString());
}

QSize NativeDialog::SizeFor(const QSize& leastContent) const
{
    const QSize content = _area->widget() ? _area->widget()->sizeHint() : QSize();
    const QSize buttons(0, _buttons->sizeHint().height() + std::max(layout()->spacing(), 0));
    return (content.expandedTo(leastContent) + buttons).grownBy(layout()->contentsMargins());
}

QSize NativeDialog::sizeHint() const
{
    const QSize usual(kLettersWide * fontMetrics().averageCharWidth(),
                      kLinesHigh * fontMetrics().lineSpacing());
    return SizeFor(usual).boundedTo(screen()->availableGeometry().size());
}

void NativeDialog::Close(Way way)
{
    if (NativeField* field = Field(); field && !field->CommitText()) return;
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
    if (!event->spontaneous()) _memory.RememberWindow(_memoryName, geometry());
    QDialog::hideEvent(event);
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
// has to show by now. Another window of the name
// that stands there is not covered.
void NativeDialog::TakeGeometry()
{
    const QRect remembered = _memory.Window(_memoryName);
    const QScreen* there = remembered.isValid() ? screen()->virtualSiblingAt(remembered.center()) : nullptr;
    QRect wanted = there ? remembered : GeometryBeside(*parentWidget());
    const int step = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    const auto others = parentWidget()->findChildren<QDialog*>(objectName(), Qt::FindDirectChildrenOnly);
    const auto covers = [&](const QDialog* other) {
        // Near is enough: the desktop makes room for a frame at the edge of the screen.
        return other != this && other->isVisible() &&
               (other->geometry().topLeft() - wanted.topLeft()).manhattanLength() < step;
    };
    const QRect free = (there ? there : parentWidget()->screen())->availableGeometry();
    wanted.setSize(wanted.size().expandedTo(SizeFor(QSize(0, 0))).boundedTo(free.size()));
    wanted.moveLeft(std::max(free.left(), std::min(wanted.left(), free.right() - wanted.width() + 1)));
    wanted.moveTop(std::max(free.top(), std::min(wanted.top(), free.bottom() - wanted.height() + 1)));
    // One that stands at the edge of the screen is passed from the corner.
    for (qsizetype i = 0; i < others.size() && std::any_of(others.begin(), others.end(), covers); ++i) {
        wanted.translate(step, step);
        if (!free.contains(wanted)) wanted.moveTopLeft(free.topLeft());
    }
    setGeometry(wanted);
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

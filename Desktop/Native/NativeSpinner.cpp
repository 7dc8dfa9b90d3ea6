#include "Native/NativeSpinner.h"

#include "Common/NativeText.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativeDescription.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kUsualLetters = 10;
constexpr int kMostLetters = 60;

} // namespace

NativeSpinner::NativeSpinner(KivDialog& node, QWidget* parent)
    : QAbstractSpinBox(parent), NativePieceFor(node, this), _mark(*lineEdit())
{
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    setKeyboardTracking(false);
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] { ForgetRefusal(); });
}

NativeSpinner::~NativeSpinner()
{
    delete _bubble;
}

bool NativeSpinner::IsWaiting() const
{
    return lineEdit()->text() != _shown;
}

void NativeSpinner::ShowNode()
{
    const QString printed = ToQt(TreeNode()->Print(TreeNode()->GetValue()));
    const bool isTaken = _refusal.isEmpty() && (!IsWaiting() || printed != _shown);
    if (isTaken || !TreeNode()->IsEnabled()) ShowValue();
    Describe();
    updateGeometry();
    update(); // the arrows end at the limits
}

void NativeSpinner::ShowValue()
{
    ForgetRefusal();
    if (!TreeNode()) return;
    _shown = ToQt(TreeNode()->Print(TreeNode()->GetValue()));
    if (lineEdit()->text() != _shown) lineEdit()->setText(_shown);
}

// A screen reader is told how to use it where the page says nothing, and why a text was refused.
void NativeSpinner::Describe()
{
    if (!TreeNode()) return;
    const NativeDescription description(*TreeNode());
    description.ShowOn(*this);
    if (!_refusal.isEmpty()) {
        setToolTip("<qt>" + _refusal.toHtmlEscaped() + "</qt>"); // what was typed may look like markup
        setAccessibleDescription(_refusal);
    } else if (accessibleDescription().isEmpty()) {
        double minimum = 0.0, maximum = 0.0, step = 0.0;
        TreeNode()->GetMinMaxStep(minimum, maximum, step);
        setAccessibleDescription(WindowText("SpinnerHelp").arg(ToQt(TreeNode()->Print(step))));
    }
    lineEdit()->setAccessibleName(accessibleName());
    lineEdit()->setAccessibleDescription(accessibleDescription());
}

bool NativeSpinner::CommitText()
{
    if (!TreeNode() || !IsWaiting()) return true;
    if (!TreeNode()->IsEnabled() || !TreeNode()->IsShown()) { // nobody could mend it
        DropText();
        return true;
    }
    const QPointer<QWidget> self(this);
    const KivHandAnswer answer = KivUserHand::Type(*TreeNode(), FromQt(lineEdit()->text()));
    if (!self) return true;
    if (answer) {
        ShowValue();
    } else {
        Refuse(ToQt(answer.why));
    }
    return answer.done;
}

std::array<double, 3> NativeSpinner::Range() const
{
    std::array<double, 3> range{};
    if (!TreeNode()) return range;
    TreeNode()->GetMinMaxStep(range[0], range[1], range[2]);
    for (double& number : range) number = Unit().ToShown(number);
    return range;
}

const KivControlUnit& NativeSpinner::Unit() const
{
    return KivControlUnit::Of(TreeNode()->GetUnit());
}

void NativeSpinner::EnterValue(double value)
{
    if (!TreeNode()) return;
    lineEdit()->setText(ToQt(TreeNode()->Print(Unit().ToStored(value))));
    CommitText();
}

void NativeSpinner::stepBy(int steps)
{
    if (!CommitText() || !TreeNode()) return;
    const QPointer<QWidget> self(this);
    KivUserHand::Turn(*TreeNode(), steps);
    if (self) lineEdit()->selectAll();
}

QAbstractSpinBox::StepEnabled NativeSpinner::stepEnabled() const
{
    if (!TreeNode()) return StepNone;
    double minimum = 0.0, maximum = 0.0, step = 0.0;
    TreeNode()->GetMinMaxStep(minimum, maximum, step);
    StepEnabled enabled = StepNone;
    if (IsWaiting() || TreeNode()->GetValue() < maximum) enabled |= StepUpEnabled;
    if (IsWaiting() || TreeNode()->GetValue() > minimum) enabled |= StepDownEnabled;
    return enabled;
}

void NativeSpinner::Refuse(const QString& why)
{
    _refusal = why;
    _mark.Say(why);
    Say(why);
    Describe();
}

void NativeSpinner::ForgetRefusal()
{
    if (_refusal.isEmpty()) return;
    _refusal.clear();
    _mark.Say({});
    if (_bubble) _bubble->hide();
    Describe();
}

void NativeSpinner::Say(const QString& text)
{
    if (!_bubble) _bubble = new NativeBubble(*this);
    _bubble->Say(text);
}

void NativeSpinner::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Once the text is entered, the key is the dialog's.
        event->setAccepted(!CommitText());
        return;
    case Qt::Key_Escape:
        event->setAccepted(IsWaiting());
        if (IsWaiting()) {
            DropText();
            lineEdit()->selectAll();
        }
        return;
    default:
        QAbstractSpinBox::keyPressEvent(event);
    }
}

void NativeSpinner::focusInEvent(QFocusEvent* event)
{
    QAbstractSpinBox::focusInEvent(event);
    if (!_refusal.isEmpty()) Say(_refusal);
}

void NativeSpinner::focusOutEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    const bool comesBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                           reason == Qt::MenuBarFocusReason;
    const QPointer<QWidget> self(this);
    if (!comesBack) CommitText();
    if (self) QAbstractSpinBox::focusOutEvent(event);
}

void NativeSpinner::wheelEvent(QWheelEvent* event)
{
    // The page scrolls unless the user has chosen this field.
    if (hasFocus()) {
        QAbstractSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

QSize NativeSpinner::sizeHint() const
{
    ensurePolished();
    const int asked = TreeNode() ? TreeNode()->GetVisibleTextWidth() : 0;
    const int letters = asked > 0 ? std::min(asked, kMostLetters) : kUsualLetters;
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const std::string_view unit =
        TreeNode() ? KivControlUnit::Of(TreeNode()->GetUnit()).suffix : std::string_view();
    const QString suffix = QString::fromUtf8(unit.data(), static_cast<qsizetype>(unit.size()));
    // What is shown is never cut; within the letters that were asked for, a longer number widens nothing.
    const int width = std::max(fontMetrics().horizontalAdvance(QString(letters, u'0') + suffix),
                               fontMetrics().horizontalAdvance(_shown)) +
                      fontMetrics().horizontalAdvance(u' ');
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option,
                                     QSize(width, lineEdit()->sizeHint().height()), this);
}

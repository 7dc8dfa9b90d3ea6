#include "Native/NativeEditor.h"

#include "Common/DialogKeyboard.h"
#include "Common/NativeText.h"
#include "Common/ReachablePath.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativeDescription.h"

#include <QFileDialog>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>

#include <algorithm>

namespace {

constexpr int kUsualLetters = 17; // of a line edit
constexpr int kMostLetters = 80;

} // namespace

NativeEditor::NativeEditor(KivDialog& node, QWidget* parent) : QLineEdit(parent), NativePieceFor(node, this)
{
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text != _shown) Complain({});
    });
}

void NativeEditor::ShowNode()
{
    if (!IsTyping() || ToQt(TreeNode()->GetText()) != _shown) ShowText();
    Describe();
}

void NativeEditor::ShowText()
{
    if (!TreeNode()) return;
    _shown = ToQt(TreeNode()->GetText());
    if (text() != _shown) setText(_shown);
    _untouched = text();
    ShowDirectory();
}

bool NativeEditor::CommitText()
{
    if (IsTyping()) Enter(text());
    return true;
}

void NativeEditor::Enter(const QString& text)
{
    if (!TreeNode()) return;
    const QPointer<QWidget> self(this);
    // Only a field that cannot be used refuses a text: what the tree has is shown again then.
    KivUserHand::Type(*TreeNode(), FromQt(text));
    if (self) ShowText();
}

QFileDialog* NativeEditor::OpenChooser()
{
    auto* const chooser = new QFileDialog(this, WindowText("ChooseDirectory"), DirectoryStart(text()));
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setFileMode(QFileDialog::Directory);
    chooser->setOption(QFileDialog::ShowDirsOnly);
    connect(chooser, &QFileDialog::fileSelected, this, &NativeEditor::Enter);
    DialogKeyboard::OpenAfterEvent(*chooser); // as in NativeColorCombo
    return chooser;
}

void NativeEditor::ShowDirectory()
{
    if (!TreeNode() || IsTyping()) return; // what is being typed is looked for when it is entered
    switch (TreeNode()->GetDirectoryState()) {
    case KivDirectoryState::There:
        return Complain({});
    case KivDirectoryState::Missing:
        return Complain(WindowText("NoDirectory").arg(_shown));
    case KivDirectoryState::Unknown:
        return Complain(WindowText("UnknownDirectory").arg(_shown));
    }
}

void NativeEditor::Complain(const QString& complaint)
{
    if (complaint == _complaint) return;
    _complaint = complaint;
    _mark.Say(complaint);
    Describe();
}

// Why a field cannot be used matters more than what stands in it.
void NativeEditor::Describe()
{
    if (!TreeNode()) return;
    NativeDescription(*TreeNode()).ShowOn(*this);
    if (_complaint.isEmpty() || !isEnabled()) return;
    setToolTip("<qt>" + _complaint.toHtmlEscaped() + "</qt>"); // a path may look like markup
    setAccessibleDescription(_complaint);
}

bool NativeEditor::event(QEvent* event)
{
    // The user may have made the directory meanwhile, or taken it away.
    if (event->type() == QEvent::WindowActivate && TreeNode()) TreeNode()->CheckDirectory();
    return QLineEdit::event(event);
}

void NativeEditor::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        CommitText();
        event->ignore(); // the key is the dialog's
        return;
    case Qt::Key_Escape:
        event->setAccepted(IsTyping());
        if (IsTyping()) DropText();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void NativeEditor::focusOutEvent(QFocusEvent* event)
{
    const QPointer<QWidget> self(this);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        CommitText();
    if (self) QLineEdit::focusOutEvent(event);
}

QSize NativeEditor::sizeHint() const
{
    QSize size = QLineEdit::sizeHint();
    const int asked = TreeNode() ? TreeNode()->GetVisibleTextWidth() : 0;
    if (asked > 0)
        size.rwidth() +=
            (std::min(asked, kMostLetters) - kUsualLetters) * fontMetrics().horizontalAdvance(u'x');
    return size;
}

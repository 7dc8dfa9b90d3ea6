#include "NativeEditor.h"

#include "Dialog/KivUserHand.h"
#include "NativeText.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>

NativeEditor::NativeEditor(KivDialog& node, QWidget* parent) : QLineEdit(parent), NativePieceFor(node, this)
{}

void NativeEditor::ShowNode()
{
    if (!isModified() || ToQt(TreeNode()->GetText()) != _shown) ShowText();
}

void NativeEditor::ShowText()
{
    if (!TreeNode()) return;
    _shown = ToQt(TreeNode()->GetText());
    if (text() != _shown) setText(_shown);
    setModified(false);
}

bool NativeEditor::CommitText()
{
    if (!TreeNode() || !isModified()) return true;
    const QPointer<QWidget> self(this);
    // Only a field that cannot be used refuses a text: what the tree has is shown again then.
    KivUserHand::Type(*TreeNode(), FromQt(text()));
    if (self) ShowText();
    return true;
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
        event->setAccepted(isModified());
        if (isModified()) ShowText();
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

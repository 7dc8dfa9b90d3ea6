#pragma once

#include "Dialog/KivDlgEditor.h"
#include "Native/NativeBubble.h"
#include "Native/NativePiece.h"

#include <QLineEdit>

class QFileDialog;

// A field for a line of text, entered with Enter or by leaving it. Where the text is the path of a directory
// and leads to none it is marked, not refused: it may be meant for later or for another machine.
class NativeEditor : public QLineEdit, public NativePieceFor<KivDlgEditor>, public NativeField {
public:
    NativeEditor(KivDialog& node, QWidget* parent);

    bool CommitText() override;
    void DropText() override { ShowText(); }
    bool IsTyping() const override { return text() != _untouched; }
    QSize sizeHint() const override;

    // Non-modal for the tree: the directory is entered when the dialog is accepted.
    QFileDialog* OpenChooser();

protected:
    void ShowNode() override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void ShowText();
    void Enter(const QString& text);
    void ShowDirectory();
    void Complain(const QString& complaint);
    void Describe();

    QString _shown;     // as in NativeSpinner
    QString _untouched; // the same as far as a line can show it
    QString _complaint;
    NativeMark _mark{*this}; // beside a path that leads nowhere, as far as is known
};

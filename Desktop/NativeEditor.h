#pragma once

#include "Dialog/KivDlgEditor.h"
#include "NativeField.h"
#include "NativePiece.h"

#include <QLineEdit>

// A field for a line of text, entered with Enter or by leaving it.
class NativeEditor : public QLineEdit, public NativePieceFor<KivDlgEditor>, public NativeField {
public:
    NativeEditor(KivDialog& node, QWidget* parent);

    bool CommitText() override;
    bool IsTyping() const override { return isModified(); }

protected:
    void ShowNode() override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void ShowText();

    QString _shown; // as in NativeSpinner
};

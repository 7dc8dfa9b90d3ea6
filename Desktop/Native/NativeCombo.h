#pragma once

#include "Dialog/KivDlgCombo.h"
#include "Native/NativePiece.h"

#include <QComboBox>

// A list of lines of which one is chosen.
class NativeCombo : public QComboBox, public NativePieceFor<KivDlgCombo> {
public:
    NativeCombo(KivDialog& node, QWidget* parent);

    // The chosen line, as a screen reader says it.
    virtual QString SpokenValue() const { return currentText(); }

protected:
    void ShowNode() override;
    void wheelEvent(QWheelEvent* event) override;

    // What is drawn before a line's text; nothing unless a kind of combo has something to draw.
    virtual QIcon LineIcon(int) const { return {}; }
    // Characters to make room for; 0: as the texts need it.
    virtual int VisibleWidth() const { return TreeNode()->GetVisibleTextWidth(); }
    // The tree's lines, and what a kind of combo offers in the window alone.
    virtual QStringList Lines() const;
    // The user has chosen a line.
    virtual void Choose(int line);
};

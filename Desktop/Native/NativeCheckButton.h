#pragma once

#include "Dialog/KivDlgCheckButton.h"
#include "Native/NativePiece.h"

#include <QCheckBox>

// A switch.
class NativeCheckButton : public QCheckBox, public NativePieceFor<KivDlgCheckButton> {
public:
    NativeCheckButton(KivDialog& node, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void ShowNode() override;
    // A click changes the tree, and the tree this widget.
    void nextCheckState() override;
};

#pragma once

#include "Dialog/KivDlgPushButton.h"
#include "Native/NativePiece.h"

#include <QPushButton>

// A button that starts something. It never becomes the dialog's default: Enter presses it only where it has
// the focus.
class NativePushButton : public QPushButton, public NativePieceFor<KivDlgPushButton> {
public:
    NativePushButton(KivDialog& node, QWidget* parent);

protected:
    void ShowNode() override;
    void keyPressEvent(QKeyEvent* event) override;
};

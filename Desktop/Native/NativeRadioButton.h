#pragma once

#include "Dialog/KivDlgRadioButton.h"
#include "Native/NativePiece.h"

#include <QRadioButton>

// One of several choices. Which exclude each other is the tree's to say: on a surface with merged frames
// native neighbors may belong to different choices. Tab enters a choice once; arrows go round in it.
class NativeRadioButton : public QRadioButton, public NativePieceFor<KivDlgRadioButton> {
public:
    NativeRadioButton(KivDialog& node, QWidget* parent);

protected:
    void ShowNode() override;
    // A click changes the tree, and the tree this widget.
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ChooseNeighbor(bool next);
    void ShowTabStop();
};

#pragma once

#include "Dialog/KivDlgButtons.h"
#include "Native/NativePiece.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

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

// A button that starts something. It never becomes the dialog's default: Enter presses it only where it has
// the focus.
class NativePushButton : public QPushButton, public NativePieceFor<KivDlgPushButton> {
public:
    NativePushButton(KivDialog& node, QWidget* parent);

protected:
    void ShowNode() override;
    void keyPressEvent(QKeyEvent* event) override;
};

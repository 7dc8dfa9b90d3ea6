#pragma once

#include "Dialog/KivDlgLock.h"
#include "Native/NativePiece.h"

#include <QAbstractButton>
#include <QPointer>

class NativePanel;

// A padlock. Closed, also in part, it is a control that Tab reaches and that opens the reason as a small
// panel; open, it is pale and only answers to the pointer that rests on it. An administrator's is a switch,
// closed or open.
class NativePadlock : public QAbstractButton, public NativePieceFor<KivDlgLock> {
public:
    NativePadlock(KivDialog& node, QWidget* parent);

    QSize sizeHint() const override { return PadlockSize(*this); }
    // Also for what only reserves the cell of a padlock.
    static QSize PadlockSize(const QWidget& widget);

protected:
    void ShowNode() override;
    bool StaysReachable() const override { return true; }
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    // Only the node knows whether it is closed.
    void nextCheckState() override {}

private:
    bool IsClosed() const { return TreeNode() && TreeNode()->IsClosed(); }
    bool IsPartlyClosed() const { return TreeNode() && TreeNode()->IsPartlyClosed(); }
    bool IsSwitch() const { return TreeNode() && TreeNode()->IsSwitch(); }
    bool GovernsRows() const;
    void Pressed();
    void DrawBar(QPainter& painter) const;

    QPointer<NativePanel> _panel; // while it is open
};

#pragma once

#include "Common/OptionsMemory.h"
#include "Dialog/KivDlgDialog.h"
#include "Native/NativePiece.h"

#include <QDialog>

class NativeScrollArea;
class QHBoxLayout;
class QPushButton;

// A window of its own within the options. Its user can only ask for its end: it disappears when its node is
// hidden or destroyed. It remembers its geometry under the node's class and name: different windows may bear
// one name.
class NativeDialog : public QDialog, public NativePieceFor<KivDlgDialog> {
public:
    // Built, but not shown yet.
    NativeDialog(KivDialog& node, const OptionsMemory& memory, QWidget* owner);

    // Enter enters the text of a field; it closes nothing.
    void accept() override {}
    void reject() override { Close(Way::OfTheDesktop); }
    QSize sizeHint() const override;

protected:
    void ShowNode() override;
    bool StaysReachable() const override { return true; }
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum class Way { ByButton, OfTheDesktop };

    void Close(Way way);
    // What the content needs, with the buttons; it counts as no smaller than that.
    QSize SizeFor(const QSize& leastContent) const;
    void TakeGeometry();
    QRect GeometryBeside(const QWidget& owner) const;

    OptionsMemory _memory;
    QString _memoryName; // the node may be gone when it is needed
    NativeScrollArea* _area;
    QHBoxLayout* _foot; // what closing does, and the button
    QPushButton* _close;
};

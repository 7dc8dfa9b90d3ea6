#pragma once

#include "Dialog/KivDlgLabel.h"
#include "Native/NativePiece.h"

#include <QLabel>

// The name of a field, whose letter leads to the field; or a picture, when the label has an icon.
class NativeLabel : public QLabel, public NativePieceFor<KivDlgLabel> {
public:
    NativeLabel(KivDialog& node, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void ShowNode() override;
    void paintEvent(QPaintEvent* event) override;

private:
    KivString Icon() const { return TreeNode() ? TreeNode()->GetIconName() : KivString(); }
};

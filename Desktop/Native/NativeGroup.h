#pragma once

#include "Dialog/KivDlgToolsOptionsFrame.h"
#include "Native/NativePiece.h"

#include <QGroupBox>

class IconView;

// A titled group with its icon beside the controls.
class NativeGroup : public QGroupBox, public NativePieceFor<KivDlgToolsOptionsFrame> {
public:
    NativeGroup(KivDialog& node, QWidget* parent);

    // Where the controls go.
    QWidget* Content() const { return _content; }

protected:
    void ShowNode() override;
    bool StaysReachable() const override { return true; }
    void initStyleOption(QStyleOptionGroupBox* option) const override;

private:
    bool KeepsIconColumn() const;

    IconView* _icon;
    QWidget* _content;
};

#pragma once

#include "Dialog/KivDlgLabel.h"
#include "NativePiece.h"

#include <QLabel>

// The name of a field; its letter leads to the field.
class NativeLabel : public QLabel, public NativePieceFor<KivDlgLabel> {
public:
    NativeLabel(KivDialog& node, QWidget* parent);

protected:
    void ShowNode() override;
};

#pragma once

#include "Native/NativePiece.h"

#include <QObject>

// Stands for a plain frame, which has no surface of its own: what happens to it happens to what is in it.
class NativeMergedFrame : public QObject, public NativePiece {
public:
    NativeMergedFrame(KivDialog& node, QObject* owner);

protected:
    void ShowNode() override;
};

#include "Native/NativeMergedFrame.h"

NativeMergedFrame::NativeMergedFrame(KivDialog& node, QObject* owner)
    : QObject(owner), NativePiece(node, nullptr)
{}

void NativeMergedFrame::ShowNode()
{
    for (const KivDialog* child : Node()->Children()) {
        if (NativePiece* piece = NativePiece::Of(child)) piece->Refresh();
    }
}

#include "Native/NativeTypeCombo.h"

#include "Native/NativeLineDrawing.h"

NativeTypeCombo::NativeTypeCombo(KivDialog& node, QWidget* parent) : NativeCombo(node, parent)
{
    NativeLineDrawing::MakeRoom(*this);
}

QIcon NativeTypeCombo::LineIcon(int line) const
{
    return NativeLineDrawing::Type(static_cast<unsigned int>(line + 1));
}

#include "Native/NativeWeightCombo.h"

#include "Dialog/KivComboWeight.h"
#include "Native/NativeLineDrawing.h"

NativeWeightCombo::NativeWeightCombo(KivDialog& node, QWidget* parent) : NativeCombo(node, parent)
{
    NativeLineDrawing::MakeRoom(*this);
}

QIcon NativeWeightCombo::LineIcon(int line) const
{
    const auto weight = static_cast<std::size_t>(line);
    const auto& thickness = KivComboWeight::kMillimeters;
    return weight < thickness.size() ? NativeLineDrawing::Weight(thickness[weight]) : QIcon();
}

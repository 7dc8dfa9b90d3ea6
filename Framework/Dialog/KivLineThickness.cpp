#include "Dialog/KivLineThickness.h"

#include "Dialog/KivComboWeight.h"

float KivGetMMThickness(int weight, int)
{
    const auto& table = KivComboWeight::kMillimeters;
    const auto index = static_cast<std::size_t>(weight);
    return weight >= 0 && index < table.size() ? static_cast<float>(table[index]) : 0.0F;
}

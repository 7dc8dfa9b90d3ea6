#include "Dialog/KivLineThickness.h"

#include "Dialog/KivComboWeight.h"

float KivGetMMThickness(int weight, int)
{
    const auto& table = KivComboWeight::kMillimeters;
    const auto place = static_cast<std::size_t>(weight);
    return weight >= 0 && place < table.size() ? static_cast<float>(table[place]) : 0.0F;
}

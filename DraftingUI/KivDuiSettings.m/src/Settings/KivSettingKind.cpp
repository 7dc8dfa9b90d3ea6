#include "KivSettingKind.h"

#include <type_traits>

bool KivSettingKind::Holds(const KivSettingValue& value) const
{
    return std::visit(
        [this](const auto& plain) {
            if constexpr (std::is_arithmetic_v<std::decay_t<decltype(plain)>>) {
                const auto number = static_cast<double>(plain);
                return number >= minimum && number <= maximum;
            } else {
                return true;
            }
        },
        value);
}

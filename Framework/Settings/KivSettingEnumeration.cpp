#include "Settings/KivSettingEnumeration.h"

#include <utility>

std::optional<KivSettingEnumeration::Item> KivSettingEnumeration::Next(const KivSettingTable& table,
                                                                       bool isProtected)
{
    while (_next < table.Size()) {
        const KivSettingAttribute& attribute = table[_next++];
        if (!KivHasValue(attribute.Shown())) continue;
        _hasAnswered = true;
        return Item{attribute.key, KivSettingTypeName(attribute.Shown())};
    }
    if (!isProtected || std::exchange(_hasAnswered, true)) return std::nullopt;
    return Item{"", ""};
}

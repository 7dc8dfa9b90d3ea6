#include "Settings/KivSettingTable.h"

#include <functional>

KivSettingInfo::Origin KivSettingAttribute::OriginWith(const KivSettingEntry& says) const
{
    using Origin = KivSettingInfo::Origin;
    const bool isGiven = KivHasValue(given);
    if (lockLayer >= 0) return isGiven ? Origin::Administrator : Origin::None;
    if (KivHasValue(says.value) && !(says.initial && isGiven)) return Origin::User;
    return isGiven ? Origin::Administrator : Origin::None;
}

const KivSettingValue& KivSettingAttribute::ShownWith(const KivSettingEntry& says) const
{
    return OriginWith(says) == KivSettingInfo::Origin::User ? says.value : given;
}

std::size_t KivSettingTable::IndexOf(std::string_view key) const
{
    const std::size_t hash = std::hash<std::string_view>()(key);
    const std::size_t mask = _slots.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot& slot = _slots[at];
        if (slot.index == None) return None;
        if (slot.hash == hash && _attributes[slot.index].key.View() == key) return slot.index;
    }
}

std::size_t KivSettingTable::IndexOfNew(std::string_view key)
{
    if (2 * (_attributes.size() + 1) > _slots.size()) Grow();
    const std::size_t hash = std::hash<std::string_view>()(key);
    const std::size_t mask = _slots.size() - 1;
    std::size_t at = hash & mask;
    for (; _slots[at].index != None; at = (at + 1) & mask) {
        const Slot& slot = _slots[at];
        if (slot.hash == hash && _attributes[slot.index].key.View() == key) return slot.index;
    }
    _slots[at] = {hash, _attributes.size()};
    _attributes.emplace_back().key = KivString(key);
    return _slots[at].index;
}

void KivSettingTable::Grow()
{
    std::vector<Slot> larger(_slots.size() * 2);
    const std::size_t mask = larger.size() - 1;
    for (const Slot& slot : _slots) {
        if (slot.index == None) continue;
        std::size_t at = slot.hash & mask;
        while (larger[at].index != None) at = (at + 1) & mask;
        larger[at] = slot;
    }
    _slots.swap(larger);
}

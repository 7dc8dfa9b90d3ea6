#include "Settings/KivSettingTable.h"

#include <algorithm>

KivSettingInfo::Origin KivSettingAttribute::OriginWith(const KivSettingEntry& entry) const
{
    using Origin = KivSettingInfo::Origin;
    const bool isGiven = KivHasValue(given);
    if (lockLayer >= 0) return isGiven ? Origin::Administrator : Origin::None;
    if (KivHasValue(entry.value) && !(entry.initial && isGiven)) return Origin::User;
    return isGiven ? Origin::Administrator : Origin::None;
}

const KivSettingValue& KivSettingAttribute::ShownWith(const KivSettingEntry& entry) const
{
    return OriginWith(entry) == KivSettingInfo::Origin::User ? entry.value : given;
}

std::size_t KivSettingTable::IndexOf(std::string_view key) const
{
    const std::size_t hash = Hash(key);
    const std::size_t mask = _slots.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot slot = _slots[at];
        if (slot.next == 0) return None;
        if (slot.hash == static_cast<std::uint32_t>(hash) && _attributes[slot.next - 1].key == key) {
            return slot.next - 1;
        }
    }
}

std::size_t KivSettingTable::FindOrAdd(std::string_view key, std::size_t hash)
{
    if (2 * (_attributes.size() + 1) > _slots.size()) Grow(2 * _slots.size());
    const std::size_t mask = _slots.size() - 1;
    std::size_t at = hash & mask;
    for (; _slots[at].next != 0; at = (at + 1) & mask) {
        const Slot slot = _slots[at];
        if (slot.hash == static_cast<std::uint32_t>(hash) && _attributes[slot.next - 1].key == key) {
            return slot.next - 1;
        }
    }
    _attributes.emplace_back().key = Keep(key);
    _slots[at] = {static_cast<std::uint32_t>(hash), static_cast<std::uint32_t>(_attributes.size())};
    return _attributes.size() - 1;
}

void KivSettingTable::Reserve(std::size_t more)
{
    const std::size_t total = _attributes.size() + more;
    if (total > _attributes.capacity()) _attributes.reserve(_attributes.empty() ? total : total + total / 2);
    std::size_t slots = _slots.size();
    while (slots < 2 * (total + 1)) slots *= 2;
    if (slots > _slots.size()) Grow(slots);
}

void KivSettingTable::Grow(std::size_t slots)
{
    // From the keys, not from the old slots: those hold half a hash, and a table of many keys needs it all.
    std::vector<Slot> larger(slots);
    const std::size_t mask = slots - 1;
    for (std::size_t index = 0; index < _attributes.size(); ++index) {
        const std::size_t hash = Hash(_attributes[index].key);
        std::size_t at = hash & mask;
        while (larger[at].next != 0) at = (at + 1) & mask;
        larger[at] = {static_cast<std::uint32_t>(hash), static_cast<std::uint32_t>(index + 1)};
    }
    _slots.swap(larger);
}

// Copies the characters of a key to where they stay for the life of the table.
std::string_view KivSettingTable::Keep(std::string_view key)
{
    constexpr std::size_t chunkSize = 4096; // holds many of the longest keys
    if (key.size() > _freeInChunk) {
        _keyChunks.push_back(std::make_unique_for_overwrite<char[]>(chunkSize));
        _freeInChunk = chunkSize;
    }
    char* const place = _keyChunks.back().get() + (chunkSize - _freeInChunk);
    std::copy(key.begin(), key.end(), place);
    _freeInChunk -= key.size();
    return {place, key.size()};
}

#include "Settings/KivSettingTable.h"

#include <algorithm>
#include <utility>

std::size_t KivSettingTable::FindOrAdd(std::string_view key, std::size_t hash)
{
    if (2 * (_attributes.size() + 1) > _slots.size()) Grow(2 * _slots.size());
    Slot& slot = _slots[SlotOf(key, hash)];
    if (slot.next != 0) return slot.next - 1;
    _attributes.emplace_back().key = Keep(key);
    slot = {static_cast<std::uint32_t>(hash >> 32), static_cast<std::uint32_t>(_attributes.size())};
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
        larger[at] = {static_cast<std::uint32_t>(hash >> 32), static_cast<std::uint32_t>(index + 1)};
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

KivSettingSnapshot::KivSettingSnapshot(const KivSettingTable& table) : _table(table)
{
    _shown.reserve(table.Size());
    for (const KivSettingAttribute& attribute : table)
        _shown.push_back({attribute.Shown(), attribute.LockWith(attribute.own)});
}

void KivSettingSnapshot::Replace(std::size_t index, const KivSettingEntry& entry)
{
    _shown[index] = {_table[index].ShownWith(entry), _table[index].LockWith(entry)};
}

std::vector<KivString> KivSettingSnapshot::Changed() const
{
    const Shown nothing; // of an attribute that was not there yet
    std::vector<KivString> changed;
    for (std::size_t i = 0; i < _table.Size(); ++i) {
        const Shown& before = i < _shown.size() ? _shown[i] : nothing;
        const KivSettingAttribute& now = _table[i];
        if (!KivSameValue(before.value, now.Shown()) || before.lock != now.LockWith(now.own))
            changed.emplace_back(now.key);
    }
    return changed;
}

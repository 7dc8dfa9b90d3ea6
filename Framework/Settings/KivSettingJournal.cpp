#include "Settings/KivSettingJournal.h"

#include <utility>

KivSettingMerge::KivSettingMerge(const KivSettingTable& table, const KivSettingJournal& unsavedNow,
                                 const KivSettingJournal& uncommittedNow, Entries onDisk)
    : entries(std::move(onDisk)), unsaved(unsavedNow), uncommitted(uncommittedNow)
{
    std::unordered_map<std::size_t, const KivSettingEntry*> saved;
    for (const auto& [index, before] : unsavedNow) saved.emplace(index, &before);
    const auto yields = [&](std::size_t index, const KivSettingEntry& entry) {
        const KivSettingEntry& now = entries.at(index);
        return entry.initial && KivHasValue(now.value) && !now.Equals(*saved.at(index));
    };
    for (auto& [index, before] : unsaved) before = entries.at(index);
    for (auto& [index, before] : uncommitted) {
        // What was the saved state at the commit follows the disk; what was committed unsaved stays.
        const auto old = saved.find(index);
        if (old == saved.end() || old->second->Equals(before) || yields(index, before))
            before = entries.at(index);
    }
    for (const auto& [index, before] : unsavedNow) {
        const KivSettingEntry& working = table[index].own;
        if (working.Equals(before) || yields(index, working)) continue;
        // Who changed the value has said nothing of the lock, and the other way round.
        KivSettingEntry& entry = entries.at(index);
        if (working.lock != before.lock && working.lock != entry.lock) {
            entry.lock = working.lock;
            entry.lockLine = working.lockLine;
        }
        if (before.HasValueOf(working) || entry.HasValueOf(working)) continue;
        entry.value = working.value;
        entry.initial = working.initial;
        entry.line = working.line;
    }
}

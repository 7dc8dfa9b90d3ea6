#include "Settings/KivSettingSnapshot.h"

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

KivSettingRepository::Keys KivSettingSnapshot::Changed() const
{
    const Shown nothing; // of an attribute that was not there yet
    KivSettingRepository::Keys changed;
    for (std::size_t i = 0; i < _table.Size(); ++i) {
        const Shown& before = i < _shown.size() ? _shown[i] : nothing;
        const KivSettingAttribute& now = _table[i];
        if (!KivSameValue(before.value, now.Shown()) || before.lock != now.LockWith(now.own))
            changed.emplace_back(now.key);
    }
    return changed;
}

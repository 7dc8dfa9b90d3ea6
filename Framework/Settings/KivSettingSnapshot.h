#pragma once

#include "Settings/KivSettingRepository.h"
#include "Settings/KivSettingTable.h"

#include <vector>

// The value and the lock of every attribute at one moment: what listeners compare.
class KivSettingSnapshot {
public:
    // The table is to outlive it.
    explicit KivSettingSnapshot(const KivSettingTable& table);

    // As if an attribute had said this.
    void Replace(std::size_t index, const KivSettingEntry& entry);

    // The keys that show another value or lock now.
    KivSettingRepository::Keys Changed() const;

private:
    struct Shown {
        KivSettingValue value;
        KivSettingAttribute::Lock lock = KivSettingAttribute::Lock::Open;
    };

    const KivSettingTable& _table;
    std::vector<Shown> _shown; // by the attribute's index
};

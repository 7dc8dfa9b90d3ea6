#pragma once

#include "Settings/KivSettingJournal.h"
#include "Settings/KivSettingTable.h"

#include <vector>

// What the written layer comes to say once its file has been read: what has not been saved stays on top of
// what the file says, but for values of a first start: nobody chose them, so that one gives way to what the
// file has come to say since.
struct KivSettingMerge {
    // onDisk: what the file says, by attribute of the table.
    KivSettingMerge(const KivSettingTable& table, const KivSettingJournal& unsavedNow,
                    const KivSettingJournal& uncommittedNow, std::vector<KivSettingEntry> onDisk);

    std::vector<KivSettingEntry> entries; // by attribute
    KivSettingJournal unsaved;
    KivSettingJournal uncommitted;
};

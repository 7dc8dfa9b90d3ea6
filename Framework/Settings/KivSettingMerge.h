#pragma once

#include "Settings/KivSettingJournal.h"
#include "Settings/KivSettingTable.h"

#include <unordered_map>

// What the written layer comes to say once its file has been read: what has not been saved stays on top of
// what the file says, but for values of a first start: nobody chose them, so that one gives way to what the
// file has come to say since.
struct KivSettingMerge {
    // What the file says of some attributes, by their index.
    using Entries = std::unordered_map<std::size_t, KivSettingEntry>;

    // onDisk: of all attributes that stand in a journal, at least.
    KivSettingMerge(const KivSettingTable& table, const KivSettingJournal& unsavedNow,
                    const KivSettingJournal& uncommittedNow, Entries onDisk);

    Entries entries;
    KivSettingJournal unsaved;
    KivSettingJournal uncommitted;
};

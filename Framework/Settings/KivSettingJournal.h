#pragma once

#include "Settings/KivSettingEntry.h"
#include "Settings/KivSettingTable.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

// What attributes said before they changed, in the order in which each first did: since the last save, or
// since the last commit.
class KivSettingJournal {
public:
    struct Record {
        std::size_t index; // of the attribute in its table
        KivSettingEntry before;
    };

    bool IsEmpty() const { return _records.empty(); }
    bool Contains(std::size_t index) const { return index < _isIn.size() && _isIn[index]; }

    // Keeps what an attribute says, unless there is a record of it already.
    void Add(std::size_t index, const KivSettingEntry& before)
    {
        if (Contains(index)) return;
        if (index >= _isIn.size()) _isIn.resize(index + 1);
        _records.push_back({index, before});
        _isIn[index] = true;
    }

    // Drops the records of the attributes whose index the predicate answers true for.
    template <class Predicate> void Drop(const Predicate& concerns)
    {
        for (const Record& record : _records)
            if (concerns(record.index)) _isIn[record.index] = false;
        std::erase_if(_records, [this](const Record& record) { return !_isIn[record.index]; });
    }

    auto begin() { return _records.begin(); }
    auto end() { return _records.end(); }
    auto begin() const { return _records.begin(); }
    auto end() const { return _records.end(); }

private:
    std::vector<Record> _records;
    std::vector<bool> _isIn; // by index
};

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

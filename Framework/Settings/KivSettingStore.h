#pragma once

#include "Settings/KivSettingJournal.h"
#include "Settings/KivSettingNews.h"
#include "Settings/KivSettingOwnFile.h"
#include "Settings/KivSettingPrefixLocks.h"
#include "Settings/KivSettingRepository.h"
#include "Settings/KivSettingSources.h"
#include "Settings/KivSettingTable.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// The resolved state of one repository: what the layers and the own file say of each key, what of it has not
// been committed and not been saved. Every change of a layer resolves the keys concerned, so that a read is
// one look-up. An operation that runs out of memory (std::bad_alloc) leaves everything as it was.
class KivSettingStore {
public:
    using Keys = KivSettingRepository::Keys;
    using Receipt = KivSettingRepository::Receipt;

    // editedLayer: the directory of the layer to be written, or empty for the user's.
    KivSettingStore(std::string_view name, const KivUnicodeString& editedLayer);

    const KivSettingAttribute* Find(const char* key) const { return key ? _table.Find(key) : nullptr; }
    // The same for who wants to know of locks: also a key that nobody gave a value may be under one.
    const KivSettingAttribute* FindOrLocked(const char* key)
    {
        const KivSettingAttribute* known = Find(key);
        return known || !key ? known : AddIfLocked(key);
    }

    // Makes these keys known, in this order: from now on they are found by their index in it.
    // Answers where their values are from now on; what stands there follows every change.
    std::span<const KivSettingValue* const> Bind(std::span<const char* const> keys);
    const KivSettingAttribute* FindBound(std::size_t index) const
    {
        return index < _bound.size() ? &_table[_bound[index]] : nullptr;
    }

    const KivSettingTable& Table() const { return _table; }
    const KivSettingSources& Sources() const { return _sources; }

    // isInitial: bears that mark, unless the user has a value of his own.
    bool Write(std::string_view key, KivSettingValue value, bool isInitial);
    bool SetLock(std::string_view key, bool locked);
    void DropOwn(std::span<const char* const> keys);

    // The keys answered by these show another value than before. Where keys are named, it concerns those
    // alone; what else has changed is left as it is.
    using Only = std::span<const char* const>;
    Keys Commit(Only only = {});
    Keys Rollback(Only only = {});
    Keys Refresh();
    Keys Save(Receipt& receipt, Only only = {});
    // The lock that the next save takes, asked for without waiting; null when nothing is to be saved, or
    // nowhere.
    std::shared_ptr<KivFileLock> AskTurn();

    // Says, once a key, that a reader expected another type than the one stored.
    void ReportOtherType(const KivSettingAttribute& attribute, const char* expected)
    {
        _sources.ReportOtherType(attribute, expected);
    }

    bool IsAdministrator() const { return _isAdministrator; }
    bool IsProtected() const { return _own.IsProtected(); }
    bool IsDamaged() const { return _own.File().IsDamaged() && !_own.File().IsOfAnotherVersion(); }
    // See KivSettingOwnFile; what is in force stays so.
    Receipt Mend() { return _own.Mend(); }

private:
    const KivSettingAttribute* AddIfLocked(std::string_view key);
    void Reserve(std::size_t more);
    std::size_t FindOrAdd(std::string_view key, std::size_t hash);
    void UpdateBinding(const KivSettingAttribute& attribute)
    {
        if (attribute.boundIndex >= 0)
            _boundValues[static_cast<std::size_t>(attribute.boundIndex)] = &attribute.Shown();
    }
    void UpdateBindings();
    void ResolveAll();
    void ApplyPrefixLocks(KivSettingAttribute& attribute) const;
    void ApplyOwnPrefixLock(KivSettingAttribute& attribute) const;
    template <class EntryOf> KivSettingPrefixLocks OwnPrefixLocks(const EntryOf& entryOf) const;
    void UseOwnPrefixLocks(KivSettingPrefixLocks locks);
    void CollectOwnPrefixLocks();
    void SwapOwn(std::size_t index, KivSettingEntry& entry);
    void ReadFiles();
    void ReadLayers();
    bool TakeWrittenLines();
    void TakeOwnFile();
    std::vector<KivSettingChange> Unsaved(Only only) const;
    bool Concerns(std::size_t index, Only only) const;
    void Change(std::size_t index, KivSettingEntry entry);
    bool IsDirty(const KivSettingJournal::Record& saved) const
    {
        return !_table[saved.index].own.Equals(saved.before);
    }
    Keys ChangedSinceCommit(Only only) const;
    void Drop(KivSettingJournal& journal, Only only);

    KivString _name;
    bool _isAdministrator;
    KivUnicodeString _editedLayer; // its directory, or empty for the user's
    KivSettingOwnFile _own;
    unsigned _takenVersion = 0; // of the own file
    KivSettingSources _sources;
    KivSettingTable _table;
    KivSettingPrefixLocks _prefixLocks;               // of the layers outside
    KivSettingPrefixLocks _ownPrefixLocks;            // of the layer that is written
    std::vector<std::uint32_t> _bound;                // the attributes of the bound keys, in their order
    std::vector<const KivSettingValue*> _boundValues; // and their values
    KivSettingJournal _unsaved;
    KivSettingJournal _uncommitted;
    KivSettingNews _news;
    std::optional<KivSettingSnapshot> _untold; // from before what no refresh has answered yet
};

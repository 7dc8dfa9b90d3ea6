#pragma once

#include "Settings/KivSettingListeners.h"
#include "Settings/KivSettingNews.h"
#include "Settings/KivSettingOwnFile.h"
#include "Settings/KivSettingPlaces.h"
#include "Settings/KivSettingPrefixLocks.h"
#include "Settings/KivSettingTable.h"

#include <cstdint>
#include <set>
#include <span>
#include <utility>
#include <vector>

// The resolved state of one repository: what the layers and the own file say of each key, what of it has not
// been committed and not been saved. Every change of a layer resolves the keys concerned, so that a read is
// one look-up.
class KivSettingStore {
public:
    using Keys = KivSettingRepository::Keys;
    using Receipt = KivSettingRepository::Receipt;

    // editedLayer: the directory of the layer to be written, or empty for the user's.
    KivSettingStore(std::string_view name, const KivUnicodeString& editedLayer);

    const KivSettingAttribute* Find(const char* key) const { return key ? _table.Find(key) : nullptr; }
    // The same for who wants to know of locks: also a key that nobody has met may be under one.
    const KivSettingAttribute* FindGoverned(const char* key)
    {
        const KivSettingAttribute* known = Find(key);
        return known || !key ? known : MeetGoverned(key);
    }

    // Makes these keys known, in this order: from now on they are found by their place in it.
    // Answers where their values are from now on; what stands there follows every change.
    std::span<const KivSettingValue* const> Bind(std::span<const char* const> keys);
    const KivSettingAttribute* FindBound(std::size_t place) const
    {
        return place < _bound.size() ? &_table[_bound[place]] : nullptr;
    }

    const KivSettingTable& Table() const { return _table; }

    bool Write(std::string_view key, KivSettingValue value);
    bool SetLock(std::string_view key, bool locked);
    void DropOwn(std::string_view key);

    // The keys answered by these show another value than before. Where keys are named, it concerns those
    // alone; what else has changed is left as it is.
    using Only = std::span<const char* const>;
    Keys Commit(Only only = {});
    Keys Rollback(Only only = {});
    Keys Refresh();
    Keys Save(Receipt& receipt, Only only = {});

    void Trace(const KivSettingAttribute& attribute, KivSettingProvenance& place) const;
    void Describe(const KivSettingAttribute& attribute, KivSettingInfo& info) const;
    // Says, once a key, that a reader expected another type than the one stored.
    void ReportOtherType(const KivSettingAttribute& attribute, const char* expected);

    bool IsAdministrator() const { return _isAdministrator; }
    bool IsProtected() const { return _own.IsProtected(); }
    std::vector<KivUnicodeString> Files() const { return _places.Files(); }

    KivSettingListeners listeners;
    bool isInitial = false; // writes bear the mark "initial"
    Receipt receipt = Receipt::Nothing;
    std::size_t nextAttribute = 0;
    bool hasDeliveredNameless = false;

private:
    // What listeners compare.
    struct Shown {
        KivSettingValue value;
        KivSettingAttribute::Lock lock = KivSettingAttribute::Lock::Open;
    };
    using AllShown = std::vector<Shown>;
    using Journal =
        std::vector<std::pair<std::size_t, KivSettingEntry>>; // an attribute, and what it said before

    const KivSettingAttribute* MeetGoverned(std::string_view key);
    std::size_t Meet(std::string_view key, std::size_t hash);
    void Aim(const KivSettingAttribute& attribute)
    {
        if (attribute.boundPlace >= 0)
            _shownBound[static_cast<std::size_t>(attribute.boundPlace)] = &attribute.Shown();
    }
    void AimAll();
    void Govern(KivSettingAttribute& attribute) const;
    void GovernAllOwn();
    void ReadFiles();
    void ReadLayers();
    void TakeOwnFile();
    std::vector<KivSettingChange> Unsaved(Only only) const;
    bool Concerns(std::size_t index, Only only) const;
    void Change(std::size_t index, const KivSettingEntry& says);
    bool IsDirty(std::size_t index, const KivSettingEntry& saved) const
    {
        return !_table[index].own.Says(saved);
    }
    AllShown ShownNow() const;
    AllShown ShownAtCommit(Only only) const;
    Keys ChangedSince(const AllShown& shown) const;
    void Forget(Journal& journal, bool KivSettingAttribute::*standsInIt, Only only);

    KivString _name;
    bool _isAdministrator;
    std::vector<KivUnicodeString> _layerDirectories; // outside of the own file, outermost first
    KivSettingOwnFile _own;
    KivSettingPlaces _places;
    KivSettingTable _table;
    KivSettingPrefixLocks _prefixLocks;              // of the layers outside
    KivSettingPrefixLocks _ownPrefixLocks;           // of the layer that is written
    std::vector<std::uint32_t> _bound;               // the attributes of the bound keys, in their order
    std::vector<const KivSettingValue*> _shownBound; // and their values
    Journal _unsaved;                                // in writing order
    Journal _uncommitted;
    std::set<std::string_view> _typesReported;
    bool _isRead = false;
    KivSettingNews _news;
};

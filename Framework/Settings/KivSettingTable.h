#pragma once

#include "Base/KivString.h"
#include "Base/KivTextHash.h"
#include "Settings/KivSettingEntry.h"
#include "Settings/KivSettingInfo.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

// One key with all that is known of it, resolved.
struct KivSettingAttribute {
    inline static const KivSettingValue& NoValue = *new KivSettingValue; // asked until the very end

    std::string_view key; // the table keeps its characters

    KivSettingEntry own; // what the layer says that is written: the user's, or the one being edited

    // What the administrator layers outside of it come to.
    const KivSettingValue* given = &NoValue; // in the layer's file
    int givenLayer = -1;
    int givenLine = 0;
    int lockLayer = -1; // the outermost layer that locks the key, or -1
    int lockLine = 0;

    bool isUnderOwnPrefix = false; // the written layer locks all keys with a prefix of this one's name
    int ownPrefixLine = 0;

    KivSettingInfo::Origin origin = KivSettingInfo::Origin::None; // Shown's, kept by Resolve

    int boundIndex = -1; // among the bound keys, or -1

    // Whom the setting is closed to: nobody, those inside of the written layer, or the writer too.
    enum class Lock { Open, Here, Outside };
    Lock LockWith(const KivSettingEntry& entry) const
    {
        if (lockLayer >= 0) return Lock::Outside;
        return entry.lock || isUnderOwnPrefix ? Lock::Here : Lock::Open;
    }

    // Who decides with this entry in the written layer.
    KivSettingInfo::Origin OriginWith(const KivSettingEntry& entry) const
    {
        using Origin = KivSettingInfo::Origin;
        const bool isGiven = KivHasValue(*given);
        if (lockLayer < 0 && KivHasValue(entry.value) && !(entry.initial && isGiven)) return Origin::User;
        return isGiven ? Origin::Administrator : Origin::None;
    }
    const KivSettingValue& ShownWith(const KivSettingEntry& entry) const
    {
        return OriginWith(entry) == KivSettingInfo::Origin::User ? entry.value : *given;
    }

    void Resolve() { origin = OriginWith(own); }
    const KivSettingValue& Shown() const
    {
        return origin == KivSettingInfo::Origin::User ? own.value : *given;
    }
};

// The attributes of a repository in the order they were met, found by key in one look-up without allocation.
// An attribute keeps its index for the life of the table.
class KivSettingTable {
public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    KivSettingTable() : _slots(64) {}

    static std::size_t Hash(std::string_view key) { return KivTextHash(key); }

    std::size_t IndexOf(std::string_view key) const { return IndexOf(key, Hash(key)); }
    std::size_t IndexOf(std::string_view key, std::size_t hash) const
    {
        const std::uint32_t next = _slots[SlotOf(key, hash)].next;
        return next == 0 ? None : next - 1;
    }
    const KivSettingAttribute* Find(std::string_view key) const
    {
        const std::size_t index = IndexOf(key);
        return index == None ? nullptr : &_attributes[index];
    }
    // The index of a key, which is added when it is not there.
    std::size_t FindOrAdd(std::string_view key, std::size_t hash);

    // Begins to fetch what a look-up of this hash, some look-ups later, will meet: in a large table each
    // meets memory that is in no cache.
    void Prefetch(std::size_t hash) const { __builtin_prefetch(&_slots[hash & (_slots.size() - 1)]); }

    // Makes room for this many attributes more.
    void Reserve(std::size_t more);

    KivSettingAttribute& operator[](std::size_t index) { return _attributes[index]; }
    const KivSettingAttribute& operator[](std::size_t index) const { return _attributes[index]; }
    const KivSettingAttribute* Data() const { return _attributes.data(); }
    std::size_t Size() const { return _attributes.size(); }

    auto begin() { return _attributes.begin(); }
    auto end() { return _attributes.end(); }
    auto begin() const { return _attributes.begin(); }
    auto end() const { return _attributes.end(); }

private:
    struct Slot {
        std::uint32_t hash = 0; // its upper half
        std::uint32_t next = 0; // the attribute's index + 1; 0: free
    };
    // The slot of the key, or the free one where it would come.
    std::size_t SlotOf(std::string_view key, std::size_t hash) const
    {
        const std::size_t mask = _slots.size() - 1;
        std::size_t at = hash & mask;
        for (; _slots[at].next != 0; at = (at + 1) & mask) {
            const bool isAlike = _slots[at].hash == static_cast<std::uint32_t>(hash >> 32);
            if (isAlike && KivSameText(_attributes[_slots[at].next - 1].key, key)) break;
        }
        return at;
    }
    void Grow(std::size_t slots);
    std::string_view Keep(std::string_view key);

    std::vector<KivSettingAttribute> _attributes;
    std::vector<Slot> _slots; // open addressing; a power of two, at most half full

    std::vector<std::unique_ptr<char[]>> _keyChunks;
    std::size_t _freeInChunk = 0;
};

// Goes through the attributes of a repository that have a value.
class KivSettingEnumeration {
public:
    struct Item {
        std::string_view name;
        const char* type;
    };

    // The next one; none at the end. Where there is none at all because the file cannot be read, one without
    // name and type stands in for them, so that the repository does not pass for an empty one.
    std::optional<Item> Next(const KivSettingTable& table, bool isProtected);

private:
    std::size_t _next = 0; // attribute
    bool _hasAnswered = false;
};

// The value and the lock of every attribute at one moment: what listeners compare.
class KivSettingSnapshot {
public:
    // The table is to outlive it.
    explicit KivSettingSnapshot(const KivSettingTable& table);

    // As if an attribute had said this.
    void Replace(std::size_t index, const KivSettingEntry& entry);

    // The keys that show another value or lock now.
    std::vector<KivString> Changed() const;

private:
    struct Shown {
        KivSettingValue value;
        KivSettingAttribute::Lock lock = KivSettingAttribute::Lock::Open;
    };

    const KivSettingTable& _table;
    std::vector<Shown> _shown; // by the attribute's index
};

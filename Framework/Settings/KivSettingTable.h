#pragma once

#include "Settings/KivSettingEntry.h"
#include "Settings/KivSettingInfo.h"

#include <cstddef>
#include <string_view>
#include <vector>

// One key with all that is known of it, resolved.
struct KivSettingAttribute {
    KivString key;

    KivSettingEntry own; // what the layer says that is written: the user's, or the one being edited

    // What the administrator layers outside of it come to.
    KivSettingValue given;
    int givenLayer = -1;
    int givenLine = 0;
    int lockLayer = -1; // the outermost layer that locks the key, or -1
    int lockLine = 0;

    KivSettingInfo::Origin origin = KivSettingInfo::Origin::None; // Shown's, kept by Resolve

    bool isUnsaved = false; // stands in the store's journal since the last save
    bool isUncommitted = false;

    // Who decides when the written layer says this.
    KivSettingInfo::Origin OriginWith(const KivSettingEntry& says) const;
    const KivSettingValue& ShownWith(const KivSettingEntry& says) const;

    void Resolve() { origin = OriginWith(own); }
    const KivSettingValue& Shown() const
    {
        return origin == KivSettingInfo::Origin::User ? own.value : given;
    }
};

// The attributes of a repository in the order they were met, found by key in one look-up without allocation.
// An attribute keeps its index for the life of the table.
class KivSettingTable {
public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    KivSettingTable() : _slots(512) {}

    std::size_t IndexOf(std::string_view key) const;
    const KivSettingAttribute* Find(std::string_view key) const
    {
        const std::size_t index = IndexOf(key);
        return index == None ? nullptr : &_attributes[index];
    }
    std::size_t IndexOfNew(std::string_view key); // adds the key when it is not there

    KivSettingAttribute& operator[](std::size_t index) { return _attributes[index]; }
    const KivSettingAttribute& operator[](std::size_t index) const { return _attributes[index]; }
    std::size_t Size() const { return _attributes.size(); }

    auto begin() { return _attributes.begin(); }
    auto end() { return _attributes.end(); }
    auto begin() const { return _attributes.begin(); }
    auto end() const { return _attributes.end(); }

private:
    struct Slot {
        std::size_t hash = 0;
        std::size_t index = None;
    };
    void Grow();

    std::vector<KivSettingAttribute> _attributes;
    std::vector<Slot> _slots; // open addressing; a power of two, at most half full
};

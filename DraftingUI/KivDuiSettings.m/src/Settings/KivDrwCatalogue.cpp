#include "KivDrwCatalogue.h"

#include <array>
#include <cstddef>

namespace {

using enum KivDrwGroup;

template <const auto& key> KivSettingValue DefaultOf()
{
    return key.makeDefault();
}

constexpr KivDrwCatalogueEntry kEntries[] = {
#define KIV_ENTRY(group, key, kind, onPage, source)                                                          \
    {group, #key, &DefaultOf<KivDrwKeys::key>, KivDrwKinds::kind, onPage, #source},
#define KIV_SETTING(group, type, key, function, value, kind) KIV_ENTRY(group, key, kind, true, key)
#define KIV_COMPUTED(group, type, key, function, kind) KIV_ENTRY(group, key, kind, true, key)
#define KIV_RESET_ONLY(group, type, key, function, value, kind) KIV_ENTRY(group, key, kind, false, key)
#define KIV_LITERAL(group, type, key, value, kind) KIV_ENTRY(group, key, kind, false, key)
#define KIV_WRITTEN_FROM(group, type, key, function, value, kind, source)                                    \
    KIV_ENTRY(group, key, kind, true, source)
#include "KivDrwSettings.def"
#undef KIV_ENTRY
};

constexpr const char* kGroupNames[] = {"General",       "Layout",        "View",         "Generation",
                                       "Geometry",      "Dimension",     "Manipulators", "Annotation",
                                       "Compatibility", "Administration"};
constexpr auto kGroups = [] {
    std::array<KivDrwGroup, std::size(kGroupNames)> groups{};
    for (std::size_t i = 0; i < groups.size(); ++i) groups[i] = static_cast<KivDrwGroup>(i);
    return groups;
}();

} // namespace

std::span<const KivDrwCatalogueEntry> KivDrwCatalogue::Entries()
{
    return kEntries;
}

std::span<const KivDrwCatalogueEntry> KivDrwCatalogue::Entries(KivDrwGroup group)
{
    const auto entries = Entries();
    std::size_t first = 0;
    while (first < entries.size() && entries[first].group != group) ++first;
    std::size_t last = first;
    while (last < entries.size() && entries[last].group == group) ++last;
    return entries.subspan(first, last - first);
}

std::span<const KivDrwGroup> KivDrwCatalogue::Groups()
{
    return kGroups;
}

std::vector<const char*> KivDrwCatalogue::ResetKeys(KivDrwGroup group)
{
    std::vector<const char*> keys;
    for (const KivDrwCatalogueEntry& entry : Entries(group)) {
        if (entry.onPage) keys.push_back(entry.key);
    }
    // A setting of the General page that has neither a control nor a default.
    if (group == General) keys.push_back("DrwAreaFillTol");
    return keys;
}

const char* KivDrwCatalogue::NameOf(KivDrwGroup group)
{
    return kGroupNames[static_cast<std::size_t>(group)];
}

const KivDrwCatalogueEntry* KivDrwCatalogue::Find(std::string_view key)
{
    for (const KivDrwCatalogueEntry& entry : kEntries) {
        if (entry.key == key) return &entry;
    }
    return nullptr;
}

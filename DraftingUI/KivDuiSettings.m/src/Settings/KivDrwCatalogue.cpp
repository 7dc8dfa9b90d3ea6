#include "KivDrwCatalogue.h"

#include <cstddef>

namespace {

using enum KivDrwGroup;

template <const auto& key> KivSettingValue DefaultOf()
{
    return key.makeDefault();
}

constexpr KivDrwRow kRows[] = {
#define KIV_ROW(group, key, kind, onPage, source)                                                            \
    {group, #key, &DefaultOf<KivDrwKeys::key>, KivDrwKinds::kind, onPage, #source},
#define KIV_SETTING(group, type, key, function, value, kind) KIV_ROW(group, key, kind, true, key)
#define KIV_COMPUTED(group, type, key, function, kind) KIV_ROW(group, key, kind, true, key)
#define KIV_RESET_ONLY(group, type, key, function, value, kind) KIV_ROW(group, key, kind, false, key)
#define KIV_LITERAL(group, type, key, value, kind) KIV_ROW(group, key, kind, false, key)
#define KIV_WRITTEN_FROM(group, type, key, function, value, kind, source)                                    \
    KIV_ROW(group, key, kind, true, source)
#include "KivDrwSettings.def"
#undef KIV_ROW
};

constexpr KivDrwGroup kGroups[] = {General,   Layout,       View,       Generation, Geometry,
                                   Dimension, Manipulators, Annotation, Trel,       Administration};
constexpr const char* kGroupNames[] = {"General",       "Layout",        "View",         "Generation",
                                       "Geometry",      "Dimension",     "Manipulators", "Annotation",
                                       "Compatibility", "Administration"};

} // namespace

std::span<const KivDrwRow> KivDrwCatalogue::Rows()
{
    return kRows;
}

std::span<const KivDrwRow> KivDrwCatalogue::Rows(KivDrwGroup group)
{
    const auto rows = Rows();
    std::size_t first = 0;
    while (first < rows.size() && rows[first].group != group) ++first;
    std::size_t last = first;
    while (last < rows.size() && rows[last].group == group) ++last;
    return rows.subspan(first, last - first);
}

std::span<const KivDrwGroup> KivDrwCatalogue::Groups()
{
    return kGroups;
}

std::vector<const char*> KivDrwCatalogue::ResetKeys(KivDrwGroup group)
{
    std::vector<const char*> keys;
    for (const KivDrwRow& row : Rows(group)) {
        if (row.onPage) keys.push_back(row.key);
    }
    // A setting of the General page that has neither a control nor a default.
    if (group == General) keys.push_back("DrwAreaFillTol");
    return keys;
}

const char* KivDrwCatalogue::NameOf(KivDrwGroup group)
{
    return kGroupNames[static_cast<std::size_t>(group)];
}

const KivDrwRow* KivDrwCatalogue::Find(std::string_view key)
{
    for (const KivDrwRow& row : kRows) {
        if (row.key == key) return &row;
    }
    return nullptr;
}

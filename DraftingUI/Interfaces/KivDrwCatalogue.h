#pragma once

#include "KivDrwKeys.h"

#include <span>
#include <string_view>
#include <vector>

// The groups of settings, in writing order; each belongs to one options page. Their names stand in the same
// order in KivDrwCatalogue.cpp.
enum class KivDrwGroup {
    General,
    Layout,
    View,
    Generation,
    Geometry,
    Dimension,
    Manipulators,
    Annotation,
    Trel,
    Administration,
};

// One setting as data.
struct KivDrwCatalogueEntry {
    KivDrwGroup group;
    const char* key;
    KivSettingValue (*makeDefault)();
    const KivSettingKind& kind;
    bool onPage;             // edited on its group's page or one of its sub-dialogs
    const char* writtenFrom; // the key whose value a reset stores under this one
};

// The catalogue of settings as a table, for whatever goes over many of them.
namespace KivDrwCatalogue {

// Every entry, in writing order, and those of one group.
std::span<const KivDrwCatalogueEntry> Entries();
std::span<const KivDrwCatalogueEntry> Entries(KivDrwGroup group);
std::span<const KivDrwGroup> Groups();

// The keys that a reset of the group's page returns to the administrator's values: those that it edits, and
// further ones that belong to it.
std::vector<const char*> ResetKeys(KivDrwGroup group);

// The group's name: what its tab is called in English.
const char* NameOf(KivDrwGroup group);
// The entry of a key, or null for a key that is none of the catalogue's.
const KivDrwCatalogueEntry* Find(std::string_view key);

} // namespace KivDrwCatalogue

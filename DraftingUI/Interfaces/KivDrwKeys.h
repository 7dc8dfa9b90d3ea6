#pragma once

#include "KivDrwDefaults.h"
#include "KivDrwKinds.h"

#include <cstddef>

// A key of the repository "DraftingOptions" with the type that it is stored in.
template <class T> struct KivDrwKey {
    const char* name;
    T (*makeDefault)();
    const KivSettingKind& kind;
    std::size_t index; // in kKivDrwKeyNames
};

// The type that a key is stored in.
template <class Key> struct KivDrwStoredIn;
template <class T> struct KivDrwStoredIn<const KivDrwKey<T>> {
    using Type = T;
};
template <class Key> using KivDrwStored = typename KivDrwStoredIn<Key>::Type;

// The index of every key in the catalogue.
namespace KivDrwIndices {
enum Index : std::size_t {
#define KIV_SETTING(group, type, key, function, value, kind) key,
#define KIV_COMPUTED(group, type, key, function, kind) key,
#define KIV_LITERAL(group, type, key, value, kind) key,
#include "KivDrwSettings.def"
};
} // namespace KivDrwIndices

// Every key by its own name; no other code spells one out.
namespace KivDrwKeys {
#define KIV_SETTING(group, type, key, function, value, kind)                                                 \
    inline constexpr KivDrwKey<type> key{#key, &function, KivDrwKinds::kind, KivDrwIndices::key};
#define KIV_COMPUTED(group, type, key, function, kind)                                                       \
    inline constexpr KivDrwKey<type> key{#key, &function, KivDrwKinds::kind, KivDrwIndices::key};
#define KIV_LITERAL(group, type, key, value, kind)                                                           \
    inline constexpr KivDrwKey<type> key{#key, [] { return type(value); }, KivDrwKinds::kind,                \
                                         KivDrwIndices::key};
#include "KivDrwSettings.def"
} // namespace KivDrwKeys

// The names of all keys, each at its index: what a repository is bound to.
inline constexpr const char* kKivDrwKeyNames[] = {
#define KIV_SETTING(group, type, key, function, value, kind) #key,
#define KIV_COMPUTED(group, type, key, function, kind) #key,
#define KIV_LITERAL(group, type, key, value, kind) #key,
#include "KivDrwSettings.def"
};

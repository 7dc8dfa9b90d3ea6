#pragma once

#include "KivDrwDefaults.h"

#include <cstddef>

// A key of the repository "DraftingOptions" with the type that it is stored in.
template <class T> struct KivDrwKey {
    const char* name;
    T (*makeDefault)();
    std::size_t place; // in kKivDrwKeyNames
};

// The type that a key is stored in.
template <class Key> struct KivDrwStoredIn;
template <class T> struct KivDrwStoredIn<const KivDrwKey<T>> {
    using Type = T;
};
template <class Key> using KivDrwStored = typename KivDrwStoredIn<Key>::Type;

// The place of every key in the catalogue.
namespace KivDrwPlaces {
enum Place : std::size_t {
#define KIV_SETTING(group, type, key, function, value) key,
#define KIV_COMPUTED(group, type, key, function) key,
#define KIV_LITERAL(group, type, key, value) key,
#include "KivDrwSettings.def"
};
} // namespace KivDrwPlaces

// Every key by its own name; no other code spells one out.
namespace KivDrwKeys {
#define KIV_SETTING(group, type, key, function, value)                                                       \
    inline constexpr KivDrwKey<type> key{#key, &function, KivDrwPlaces::key};
#define KIV_COMPUTED(group, type, key, function)                                                             \
    inline constexpr KivDrwKey<type> key{#key, &function, KivDrwPlaces::key};
#define KIV_LITERAL(group, type, key, value)                                                                 \
    inline constexpr KivDrwKey<type> key{#key, [] { return type(value); }, KivDrwPlaces::key};
#include "KivDrwSettings.def"
} // namespace KivDrwKeys

// The names of all keys, each at its place: what a repository is bound to.
inline constexpr const char* kKivDrwKeyNames[] = {
#define KIV_SETTING(group, type, key, function, value) #key,
#define KIV_COMPUTED(group, type, key, function) #key,
#define KIV_LITERAL(group, type, key, value) #key,
#include "KivDrwSettings.def"
};

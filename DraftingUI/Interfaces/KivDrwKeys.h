#pragma once

#include "KivDrwDefaults.h"

// A key of the repository "DraftingOptions" with the type that it is stored in.
template <class T> struct KivDrwKey {
    const char* name;
    T (*makeDefault)();
};

// Every key by its own name; no other code spells one out.
namespace KivDrwKeys {
#define KIV_SETTING(group, type, key, function, value) inline constexpr KivDrwKey<type> key{#key, &function};
#define KIV_COMPUTED(group, type, key, function) inline constexpr KivDrwKey<type> key{#key, &function};
#define KIV_LITERAL(group, type, key, value)                                                                 \
    inline constexpr KivDrwKey<type> key{#key, [] { return type(value); }};
#include "KivDrwSettings.def"
} // namespace KivDrwKeys

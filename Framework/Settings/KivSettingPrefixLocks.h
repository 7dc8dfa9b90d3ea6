#pragma once

#include "Base/KivTextHash.h"

#include <bitset>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

// Locks on all keys that begin alike. What governs a key is found by one look-up for each length of prefix
// that occurs, however many locks there are.
class KivSettingPrefixLocks {
public:
    struct Source {
        int layer = -1; // -1: there is none
        int line = 0;
    };

    void Clear();

    // A pattern is a prefix and a star. Layers come outermost first, and the outermost one counts.
    void Add(std::string_view pattern, int layer, int line);

    bool IsEmpty() const { return _sources.empty(); }

    // The outermost lock on a key; of several in that layer the one with the shortest prefix.
    Source Find(std::string_view key) const;

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return KivTextHash(text); }
    };
    static constexpr std::size_t kLongest = 255; // of a key

    std::unordered_map<std::string, Source, Hash, std::equal_to<>> _sources; // by prefix
    std::bitset<kLongest + 1> _lengths;                                      // that occur
};

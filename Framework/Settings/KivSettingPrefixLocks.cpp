#include "Settings/KivSettingPrefixLocks.h"

#include <algorithm>

void KivSettingPrefixLocks::Clear()
{
    _places.clear();
    _lengths.reset();
}

void KivSettingPrefixLocks::Add(std::string_view pattern, int layer, int line)
{
    const std::string_view prefix = pattern.substr(0, pattern.size() - 1);
    _places.try_emplace(std::string(prefix), Place{layer, line});
    _lengths.set(prefix.size());
}

KivSettingPrefixLocks::Place KivSettingPrefixLocks::Find(std::string_view key) const
{
    Place outermost;
    if (_places.empty()) return outermost;
    for (std::size_t length = 0; length <= std::min(key.size(), kLongest); ++length) {
        if (!_lengths[length]) continue;
        const auto found = _places.find(key.substr(0, length));
        if (found == _places.end()) continue;
        if (outermost.layer < 0 || found->second.layer < outermost.layer) outermost = found->second;
    }
    return outermost;
}

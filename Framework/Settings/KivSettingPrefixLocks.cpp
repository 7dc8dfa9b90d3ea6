#include "Settings/KivSettingPrefixLocks.h"

#include <algorithm>

void KivSettingPrefixLocks::Clear()
{
    _sources.clear();
    _lengths.reset();
}

void KivSettingPrefixLocks::Add(std::string_view pattern, int layer, int line)
{
    const std::string_view prefix = pattern.substr(0, pattern.size() - 1);
    _sources.try_emplace(std::string(prefix), Source{layer, line});
    _lengths.set(prefix.size());
}

KivSettingPrefixLocks::Source KivSettingPrefixLocks::Find(std::string_view key) const
{
    Source outermost;
    if (_sources.empty()) return outermost;
    for (std::size_t length = 0; length <= std::min(key.size(), kLongest); ++length) {
        if (!_lengths[length]) continue;
        const auto found = _sources.find(key.substr(0, length));
        if (found == _sources.end()) continue;
        if (outermost.layer < 0 || found->second.layer < outermost.layer) outermost = found->second;
    }
    return outermost;
}

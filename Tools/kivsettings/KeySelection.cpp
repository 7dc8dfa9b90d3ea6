#include "KeySelection.h"

#include "Console.h"
#include "NearestNames.h"

#include "Settings/KivSettingLine.h"

#include <algorithm>
#include <fnmatch.h>
#include <strings.h>

namespace {

bool FitsPattern(const std::string& pattern, const std::string& key)
{
    return fnmatch(pattern.c_str(), key.c_str(), 0) == 0;
}

void AddOnce(std::vector<std::string>& keys, const std::string& key)
{
    if (std::find(keys.begin(), keys.end(), key) == keys.end()) keys.push_back(key);
}

} // namespace

bool KeySelection::IsPattern(std::string_view name)
{
    return name.find_first_of("*?[") != std::string_view::npos;
}

std::string KeySelection::Suggestion(std::string_view key)
{
    std::vector<std::string_view> known;
    for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries()) known.emplace_back(entry.key);
    return DidYouMean(key, known);
}

std::string KeySelection::UnknownKeyMessage(std::string_view key)
{
    return "there is no setting \"" + std::string(key) + "\"" + Suggestion(key);
}

bool KeySelection::Fits(const std::string& key, const std::vector<std::string>& patterns)
{
    return patterns.empty() ||
           std::any_of(patterns.begin(), patterns.end(),
                       [&key](const std::string& pattern) { return FitsPattern(pattern, key); });
}

std::optional<std::vector<std::string>> KeySelection::Named(const Settings& settings,
                                                            const std::vector<std::string>& names, bool force,
                                                            Console& console)
{
    std::vector<std::string> keys;
    bool isGood = true;
    for (const std::string& name : names) {
        const std::size_t before = keys.size();
        bool isFound = false;
        if (IsPattern(name)) {
            std::vector<std::string> candidates;
            for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries())
                candidates.emplace_back(entry.key);
            if (force) {
                for (const std::string& unknown : settings.UnknownKeys()) candidates.push_back(unknown);
            }
            for (const std::string& candidate : candidates) {
                if (!FitsPattern(name, candidate)) continue;
                isFound = true;
                AddOnce(keys, candidate);
            }
        } else if (KivDrwCatalogue::Find(name) || (force && KivIsSettingKey(name))) {
            isFound = true;
            AddOnce(keys, name);
        }
        if (!isFound) {
            console.Say(IsPattern(name) ? "no setting fits \"" + name + "\"" : UnknownKeyMessage(name));
            keys.resize(before);
            isGood = false;
        }
    }
    if (!isGood) return std::nullopt;
    return keys;
}

std::optional<KivDrwGroup> KeySelection::Page(std::string_view name, Console& console)
{
    // As the Compatibility page was called before.
    if (strcasecmp("Trel", std::string(name).c_str()) == 0) return KivDrwGroup::Trel;
    std::vector<std::string_view> known;
    for (const KivDrwGroup group : KivDrwCatalogue::Groups()) {
        const char* const page = KivDrwCatalogue::NameOf(group);
        if (strcasecmp(page, std::string(name).c_str()) == 0) return group;
        known.emplace_back(page);
    }
    std::string message = "there is no page \"" + std::string(name) + "\"; the pages are";
    for (std::size_t i = 0; i < known.size(); ++i) (message += i == 0 ? " " : ", ") += known[i];
    console.Say(message);
    return std::nullopt;
}

#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"
#include "SettingListing.h"

#include <algorithm>
#include <unistd.h>

namespace {

bool IsWanted(const Setting& setting, const Arguments& arguments)
{
    if (arguments.Has("changed") && !setting.IsChanged()) return false;
    return !arguments.Has("locked") || setting.IsLocked();
}

std::vector<std::string> Keys(const Settings& settings, const Arguments& arguments,
                              const std::optional<KivDrwGroup>& page)
{
    std::vector<std::string> keys;
    for (const KivDrwCatalogueEntry& entry :
         page ? KivDrwCatalogue::Entries(*page) : KivDrwCatalogue::Entries())
        keys.emplace_back(entry.key);
    if (arguments.Has("all") && !page) {
        for (const std::string& key : settings.UnknownKeys()) keys.push_back(key);
    }
    std::erase_if(keys, [&](const std::string& key) { return !KeySelection::Fits(key, arguments.names); });
    return keys;
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    std::optional<KivDrwGroup> page;
    if (arguments.Has("page") && !(page = KeySelection::Page(arguments.Value("page"), console)))
        return ExitCode::Misuse;
    const Settings settings;
    const std::vector<std::string> keys = Keys(settings, arguments, page);
    if (keys.empty()) {
        console.Say("no setting fits");
        return ExitCode::Misuse;
    }
    std::vector<Setting> shown;
    for (const std::string& key : keys) {
        Setting setting = settings.Describe(key);
        if (IsWanted(setting, arguments)) shown.push_back(std::move(setting));
    }
    console.Print(arguments.Has("json") ? SettingsAsJson(shown)
                                        : SettingsAsTable(shown, isatty(STDOUT_FILENO) != 0));
    return settings.AfterReading();
}

constexpr Option kOptions[] = {
    {"page", "PAGE", "only the settings of one options page"},
    {"changed", nullptr, "only those that differ from their defaults"},
    {"locked", nullptr, "only those that an administrator locks"},
    {"all", nullptr, "also stored keys that the catalogue does not know"},
    kJsonOption,
};

constexpr Example kExamples[] = {
    {"kivsettings list --changed", "what differs from the defaults, and who changed it"},
    {"kivsettings list --page Dimension 'Dim*R'", "some settings of one page"},
    {"kivsettings list --locked --json", "everything that is locked, for a program"},
    {"kivsettings list | cut -f1,3", "keys and values"},
};

} // namespace

constexpr Command kListCommand{
    .name = "list",
    .arguments = "[PATTERN...]",
    .most = kAnyNumber,
    .summary = "show settings: type, value, default, origin, lock, page",
    .description =
        "Shows one setting a line: key, type, value in force, default, origin, lock, page. A\n"
        "pattern is a key with *, ? and [] as in file names. On a terminal the columns are\n"
        "aligned under a heading; else a tab stands between them. The origin is \"default\",\n"
        "\"user\", \"initial\" (written by the first start) or the layer that gave the value, the\n"
        "lock is \"-\" or the layer that locks.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

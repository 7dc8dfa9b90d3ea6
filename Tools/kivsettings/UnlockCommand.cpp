#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"
#include "SettingsFile.h"

#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingLine.h"

#include <algorithm>
#include <filesystem>

namespace {

// The locks of the layer's file that fit the patterns: on beginnings first, for they hold those on keys.
std::vector<std::string> OwnLocks(const Arguments& arguments, Console& console)
{
    const KivUnicodeString path =
        KivSettingLayers::FileIn(KivSettingLayers::Absolute(arguments.Value("layer")), Settings::Name);
    std::vector<std::string> locks;
    std::error_code failed;
    if (!std::filesystem::exists(path.ConvertToChar(), failed)) return locks;
    const SettingsFile file(path.ConvertToChar(), console);
    for (const auto& [key, entry] : file.Entries()) {
        if (entry.lock && KeySelection::Fits(key, arguments.names))
            locks.insert(KivIsSettingPattern(key) ? locks.begin() : locks.end(), key);
    }
    return locks;
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    Settings settings;
    std::vector<std::string> keys = OwnLocks(arguments, console);
    // A name that the layer does not lock has to be a key all the same.
    std::vector<std::string> others = arguments.names;
    std::erase_if(others, [&keys](const std::string& name) {
        return std::any_of(keys.begin(), keys.end(),
                           [&name](const std::string& key) { return KeySelection::Fits(key, {name}); });
    });
    const auto named = KeySelection::Named(settings, others, arguments.Has("force"), console);
    if (!named) return ExitCode::Misuse;
    keys.insert(keys.end(), named->begin(), named->end());
    const ExitCode code = settings.SetLocks(keys, false, console);
    return code | settings.Save(console);
}

constexpr Option kOptions[] = {kForceOption};

constexpr Example kExamples[] = {
    {"kivsettings unlock --layer /etc/kiv/site Ruler", "users may change it; the layer's value stays"},
    {"kivsettings unlock --layer /etc/kiv/site '*'", "opens everything that this layer locks"},
};

} // namespace

constexpr Command kUnlockCommand{
    .name = "unlock",
    .arguments = "KEY...",
    .fewest = 1,
    .most = kAnyNumber,
    .summary = "open locks of an administrator's layer",
    .description =
        "Opens the lock of each key or pattern in the layer of --layer; its value stays. A pattern\n"
        "opens the locks on beginnings that fit, too. Keys that a beginning or an outer layer locks\n"
        "stay locked and are named with their locker (exit code 1).",
    .options = kOptions,
    .examples = kExamples,
    .needsLayer = true,
    .run = &Run,
};

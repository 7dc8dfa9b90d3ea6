#include "Arguments.h"
#include "Assignment.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"
#include "SettingsFile.h"

#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingLine.h"

#include <algorithm>
#include <filesystem>

namespace {

// Locks or unlocks each key or beginning; those that stay as they are are said with their locker.
bool SetLocks(const std::vector<std::string>& keys, bool locked, Settings& settings, Console& console)
{
    bool isWhole = true;
    for (const std::string& key : keys) {
        if (settings.Repository().SetLock(key.c_str(), locked) == S_OK) continue;
        const KivSettingInfo info = settings.Describe(key).info;
        KivUnicodeString words = info.Words();
        if (!info.locked) words.Append(" That line locks more than this key: unlock it as it stands there.");
        console.Say(key, words.View());
        isWhole = false;
    }
    return isWhole;
}

ExitCode Lock(const Arguments& arguments, Console& console)
{
    Settings settings;
    std::vector<std::string> typed, beginnings, names;
    // "Dim*" stays one lock for all that begins so; other patterns stand for the keys that fit now.
    for (const std::string& word : arguments.names) {
        (word.find('=') != std::string::npos ? typed
         : KivIsSettingPattern(word)         ? beginnings
                                             : names)
            .push_back(word);
    }
    const bool force = arguments.Has("force");
    const auto assignments = Assignments::Parse(typed, settings, arguments, console);
    auto keys = KeySelection::Named(settings, names, force, console);
    const bool isKnown = force || KeySelection::Named(settings, beginnings, false, console);
    if (!assignments || !keys || !isKnown) return ExitCode::Misuse;
    for (const Assignment& assignment : *assignments) {
        settings.Write(assignment.key, assignment.value); // one that an outer layer locks is said below
        keys->push_back(assignment.key);
    }
    keys->insert(keys->end(), beginnings.begin(), beginnings.end());
    const bool isWhole = SetLocks(*keys, true, settings, console);
    return settings.Save(console) | (isWhole ? ExitCode::Done : ExitCode::Refused);
}

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

ExitCode Unlock(const Arguments& arguments, Console& console)
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
    const bool isWhole = SetLocks(keys, false, settings, console);
    return settings.Save(console) | (isWhole ? ExitCode::Done : ExitCode::Refused);
}

constexpr Option kLockOptions[] = {
    kForceOption,
    {"type", "TYPE", "the type of an unknown key: int, unsigned, float, double or string"},
};
constexpr Option kUnlockOptions[] = {kForceOption};

constexpr Example kLockExamples[] = {
    {"kivsettings lock --layer /etc/kiv/site Ruler=1", "the rulers are shown on every seat"},
    {"kivsettings lock --layer /etc/kiv/site 'Dim*'",
     "all that begins so, each at the value that it has there"},
};
constexpr Example kUnlockExamples[] = {
    {"kivsettings unlock --layer /etc/kiv/site Ruler", "users may change it; the layer's value stays"},
    {"kivsettings unlock --layer /etc/kiv/site '*'", "opens everything that this layer locks"},
};

} // namespace

constexpr Command kLockCommand{
    .name = "lock",
    .arguments = "KEY[=VALUE]...",
    .fewest = 1,
    .most = kAnyNumber,
    .summary = "lock keys in an administrator's layer",
    .description =
        "Locks each key or pattern in the layer of --layer, with a value or at the one that\n"
        "applies there. Users then see the padlock closed. A beginning and a star (\"Dim*\") is one\n"
        "lock for every key that begins so, those of later versions too. Keys that an outer layer\n"
        "locks are named with their locker and left alone (exit code 1).",
    .options = kLockOptions,
    .examples = kLockExamples,
    .needsLayer = true,
    .run = &Lock,
};

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
    .options = kUnlockOptions,
    .examples = kUnlockExamples,
    .needsLayer = true,
    .run = &Unlock,
};

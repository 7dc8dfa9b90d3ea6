#include "Arguments.h"
#include "Assignment.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"

namespace {

// Locks or unlocks each key; those that an outer layer locks are said with their locker.
bool SetLocks(const std::vector<std::string>& keys, bool locked, Settings& settings, Console& console)
{
    bool isWhole = true;
    for (const std::string& key : keys) {
        if (settings.Repository().SetLock(key.c_str(), locked) == S_OK) continue;
        console.Say(key, settings.Describe(key).info.Words().View());
        isWhole = false;
    }
    return isWhole;
}

ExitCode Lock(const Arguments& arguments, Console& console)
{
    Settings settings;
    std::vector<std::string> names, typed;
    for (const std::string& word : arguments.names)
        (word.find('=') == std::string::npos ? names : typed).push_back(word);
    const auto assignments = Assignments::Parse(typed, settings, arguments, console);
    auto keys = KeySelection::Named(settings, names, arguments.Has("force"), console);
    if (!assignments || !keys) return ExitCode::Misuse;
    for (const Assignment& assignment : *assignments) {
        settings.Write(assignment.key, assignment.value); // one that an outer layer locks is said below
        keys->push_back(assignment.key);
    }
    const bool isWhole = SetLocks(*keys, true, settings, console);
    return settings.Save(console) | (isWhole ? ExitCode::Done : ExitCode::Refused);
}

ExitCode Unlock(const Arguments& arguments, Console& console)
{
    Settings settings;
    const auto keys = KeySelection::Named(settings, arguments.names, arguments.Has("force"), console);
    if (!keys) return ExitCode::Misuse;
    const bool isWhole = SetLocks(*keys, false, settings, console);
    return settings.Save(console) | (isWhole ? ExitCode::Done : ExitCode::Refused);
}

constexpr Option kLockOptions[] = {
    kForceOption,
    {"type", "TYPE", "the type of an unknown key: int, unsigned, float, double or string"},
};
constexpr Option kUnlockOptions[] = {kForceOption};

constexpr Example kLockExamples[] = {
    {"kivsettings lock --layer /etc/kiv/site Ruler=1", "the rulers are shown on every seat"},
    {"kivsettings lock --layer /etc/kiv/site 'DrwLock*'", "each at the value that it has there"},
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
    .description = "Locks each key or pattern in the layer of --layer, with a value or at the one that\n"
                   "applies there. Users then see the padlock closed. Keys that an outer layer locks are\n"
                   "named with their locker and left alone (exit code 1).",
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
        "Opens the lock of each key or pattern in the layer of --layer; its value stays. Keys that\n"
        "an outer layer locks stay locked and are named with their locker (exit code 1).",
    .options = kUnlockOptions,
    .examples = kUnlockExamples,
    .needsLayer = true,
    .run = &Unlock,
};

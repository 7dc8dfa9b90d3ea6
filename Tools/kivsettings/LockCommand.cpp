#include "Arguments.h"
#include "Assignment.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"

#include "Settings/KivSettingLine.h"

namespace {

ExitCode Run(const Arguments& arguments, Console& console)
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
    const ExitCode code = settings.SetLocks(*keys, true, console);
    return code | settings.Save(console);
}

constexpr Option kOptions[] = {
    kForceOption,
    {"type", "TYPE", "the type of an unknown key: int, unsigned, float, double or string"},
};

constexpr Example kExamples[] = {
    {"kivsettings lock --layer /etc/kiv/site Ruler=1", "the rulers are shown on every seat"},
    {"kivsettings lock --layer /etc/kiv/site 'Dim*'",
     "all that begins so, each at the value that it has there"},
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
    .options = kOptions,
    .examples = kExamples,
    .needsLayer = true,
    .run = &Run,
};

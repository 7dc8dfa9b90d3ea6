#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"

namespace {

ExitCode Run(const Arguments& arguments, Console& console)
{
    Settings settings;
    const auto keys = KeySelection::Named(settings, arguments.names, arguments.Has("force"), console);
    if (!keys) return ExitCode::Misuse;
    settings.Drop(*keys);
    return settings.Save(console);
}

constexpr Option kOptions[] = {kForceOption};

constexpr Example kExamples[] = {
    {"kivsettings unset Ruler", "the administrator's value applies again, else the default"},
    {"kivsettings unset 'Dim*'", "the same for every key that begins so"},
    {"kivsettings unset --layer /etc/kiv/site Ruler", "withdraws what the site says: value and lock"},
};

} // namespace

constexpr Command kUnsetCommand{
    .name = "unset",
    .arguments = "KEY...",
    .fewest = 1,
    .most = kAnyNumber,
    .summary = "drop the own value of each key",
    .description =
        "Drops the user's value of each key or pattern, so that the administrator's applies, else the\n"
        "default. With --layer it drops the layer's value and lock: a lock alone would close the\n"
        "setting at another value. Keys without one are passed over.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

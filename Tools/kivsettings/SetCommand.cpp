#include "Arguments.h"
#include "Assignment.h"
#include "Commands.h"
#include "Console.h"
#include "Settings.h"

namespace {

ExitCode Run(const Arguments& arguments, Console& console)
{
    Settings settings;
    const auto assignments = Assignments::Parse(arguments.names, settings, arguments, console);
    return assignments ? Assignments::Store(*assignments, settings, console) : ExitCode::Misuse;
}

constexpr Option kOptions[] = {
    kForceOption,
    {"type", "TYPE", "the type of an unknown key: int, unsigned, float, double or string"},
};

constexpr Example kExamples[] = {
    {"kivsettings set Ruler=1", "shows the rulers"},
    {"kivsettings set Drw_settings_GridPrimarySpacing=25 Drw_settings_GridSecondaryStep=5",
     "both in one save"},
    {"kivsettings set Drw_settings_ColorSmartPick=0x436655", "a packed color"},
    {"kivsettings set --layer /etc/kiv/site Ruler=1", "what a site starts with; users may change it"},
};

} // namespace

constexpr Command kSetCommand{
    .name = "set",
    .arguments = "KEY=VALUE...",
    .fewest = 1,
    .most = kAnyNumber,
    .summary = "change settings, all in one save",
    .description =
        "Changes settings in one save. Values are checked against the catalogue first: when a key\n"
        "is unknown or a value is not of its type or out of its range, nothing is changed (exit\n"
        "code 2). Locked keys are named with their locker and left alone, the others are stored\n"
        "(exit code 1).",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"

#include "Settings/KivSettingFile.h"

namespace {

ExitCode Run(const Arguments& arguments, Console& console)
{
    const Settings settings;
    std::vector<std::string> patterns = arguments.names;
    if (patterns.empty()) patterns.emplace_back("*");
    const auto keys = KeySelection::Named(settings, patterns, true, console);
    if (!keys) return ExitCode::Misuse;
    std::vector<KivSettingChange> lines;
    for (const std::string& key : *keys) {
        const Setting setting = settings.Describe(key);
        if (!KivHasValue(setting.value) || (!arguments.Has("all") && !setting.IsChanged())) continue;
        lines.push_back({KivString(key.c_str()), {.value = setting.value}});
    }
    console.Print(*KivSettingFile().With(lines).text);
    return settings.AfterReading();
}

constexpr Option kOptions[] = {{"all", nullptr, "also what is as by default"}};

constexpr Example kExamples[] = {
    {"kivsettings export >mine.kivsettings", "what differs from the defaults"},
    {"kivsettings export --all 'Dim*' >dimensions.kivsettings", "every key that begins so"},
    {"kivsettings export | ssh other kivsettings import -", "the same settings on another machine"},
};

} // namespace

constexpr Command kExportCommand{
    .name = "export",
    .arguments = "[PATTERN...]",
    .most = kAnyNumber,
    .summary = "print settings that differ from the defaults as a settings file",
    .description =
        "Prints the values in force that differ from the defaults as a settings file, for import.\n"
        "Patterns select keys.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

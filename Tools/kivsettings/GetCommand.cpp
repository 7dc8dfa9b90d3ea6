#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"
#include "SettingListing.h"
#include "ValueText.h"

namespace {

ExitCode Run(const Arguments& arguments, Console& console)
{
    const Settings settings;
    const auto keys = KeySelection::Named(settings, arguments.names, arguments.Has("force"), console);
    if (!keys) return ExitCode::Misuse;
    ExitCode code = settings.AfterReading();
    std::vector<Setting> found;
    for (const std::string& key : *keys) {
        Setting setting = settings.Describe(key);
        if (KivHasValue(setting.value)) {
            found.push_back(std::move(setting));
        } else {
            console.Say(key, "there is no value");
            code = code | ExitCode::Refused;
        }
    }
    if (arguments.Has("json")) {
        console.Print(SettingsAsJson(found));
    } else {
        for (const Setting& setting : found) console.Print(ShownValue(setting.value) + "\n");
    }
    return code;
}

constexpr Option kOptions[] = {kJsonOption, kForceOption};

constexpr Example kExamples[] = {
    {"kivsettings get Ruler", "prints 0 or 1"},
    {"kivsettings get CstColorR CstColorG CstColorB", "prints three lines"},
    {"kivsettings get --json Drw_settings_GridPrimarySpacing",
     "everything that is known of it, for a program"},
};

} // namespace

constexpr Command kGetCommand{
    .name = "get",
    .arguments = "KEY...",
    .fewest = 1,
    .most = kAnyNumber,
    .summary = "print the value in force of each key",
    .description =
        "Prints the value in force of each key or pattern, one a line in the order asked for: the\n"
        "locked one, else the user's, else the administrator's, else the default. A text stands\n"
        "bare unless it holds control characters; then it is quoted as in a settings file.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

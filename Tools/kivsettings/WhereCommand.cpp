#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"
#include "SettingListing.h"

namespace {

ExitCode Run(const Arguments& arguments, Console& console)
{
    const Settings settings;
    const auto keys = KeySelection::Named(settings, arguments.names, arguments.Has("force"), console);
    if (!keys) return ExitCode::Misuse;
    JsonArray array;
    for (const std::string& key : *keys) {
        const Setting setting = settings.Describe(key);
        const KivUnicodeString message = setting.info.Message();
        if (arguments.Has("json"))
            console.Print(array.Element(SettingAsJson(setting).Add("words", message.View())));
        else
            console.Print(key + ": " + message.ConvertToChar() + "\n");
    }
    if (arguments.Has("json")) console.Print(array.End());
    return settings.AfterReading();
}

constexpr Option kOptions[] = {kJsonOption, kForceOption};

constexpr Example kExamples[] = {
    {"kivsettings where Ruler", "who set it, who locks it, in which file and line"},
    {"kivsettings where 'Drw_settings_Grid*'", "the same for the whole grid"},
};

} // namespace

constexpr Command kWhereCommand{
    .name = "where",
    .arguments = "KEY...",
    .fewest = 1,
    .most = kAnyNumber,
    .summary = "tell who set or locked a key, in which file and line",
    .description = "Tells in the words of the padlock on the options page where the value of each key or\n"
                   "pattern comes from and who locks it.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

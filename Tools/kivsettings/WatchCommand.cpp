#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "FileWatch.h"
#include "KeySelection.h"
#include "SettingListing.h"
#include "ValueText.h"

#include "Disk/KivTimedReading.h"
#include "Settings/KivSettingLayers.h"

namespace {

constexpr std::chrono::seconds kPatience{1};

// With the list of layers, by which others may come to count.
std::vector<KivUnicodeString> Files(const Settings& settings)
{
    std::vector<KivUnicodeString> files = settings.Repository().Files();
    if (!KivSettingLayers::SystemFile().IsEmpty()) files.push_back(KivSettingLayers::SystemFile());
    return files;
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    Settings settings;
    if (!KeySelection::Named(settings, arguments.names, arguments.Has("force"), console))
        return ExitCode::Misuse;
    FileWatch watch(Files(settings));
    if (!watch.IsOpen()) {
        console.Say("the system offers no way to watch files");
        return ExitCode::Trouble;
    }
    settings.Repository().AddListener([&](const KivSettingRepository::Keys& changed) {
        for (const KivString& changedKey : changed) {
            const std::string key(changedKey.View());
            if (!KeySelection::Fits(key, arguments.names)) continue;
            const Setting setting = settings.Describe(key);
            console.Print(arguments.Has("json")
                              ? SettingAsJson(setting).Text() + "\n"
                              : key + "\t" + ShownValue(setting.value) + "\t" + LockOf(setting) + "\n");
        }
    });
    // What was saved between reading and watching.
    for (FileWatch::Event event = FileWatch::Event::Changed;; event = watch.Wait()) {
        if (event != FileWatch::Event::Changed) return ExitCode::Done;
        // The layer of --layer may lie on a share that is away: what is known of it stays.
        if (KivAnswersInTime(settings.Repository().Files().back(), kPatience))
            settings.Repository().Refresh();
        if (!console.Flush()) return ExitCode::Done;
    }
}

constexpr Option kOptions[] = {kJsonOption, kForceOption};

constexpr Example kExamples[] = {
    {"kivsettings watch", "prints every change until Ctrl+C"},
    {"kivsettings watch 'Drw_settings_*' --json", "one JSON object a line, for a program"},
    {"kivsettings watch Ruler | while read -r key value lock; do echo \"$value\"; done", "acts on a change"},
};

} // namespace

constexpr Command kWatchCommand{
    .name = "watch",
    .arguments = "[PATTERN...]",
    .most = kAnyNumber,
    .summary = "print changes as other programs save them",
    .description =
        "Prints a line when another program or a person changes a setting's value or lock: key, new\n"
        "value and the layer that locks it or \"-\", with tabs between them. Ends at Ctrl+C, SIGTERM\n"
        "and when its output is closed.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

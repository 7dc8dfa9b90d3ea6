#include "Arguments.h"
#include "ChangeLines.h"
#include "Commands.h"
#include "Console.h"
#include "Settings.h"
#include "SettingsFile.h"

#include <algorithm>

namespace {

// Everything that the own file or layer changes.
std::vector<Change> OwnChanges(Settings& settings)
{
    std::vector<std::string> keys = settings.UnknownKeys();
    for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries()) keys.emplace_back(entry.key);
    std::vector<Change> changes;
    for (const std::string& key : keys) {
        const Setting setting = settings.Describe(key);
        changes.push_back({key, {}, {.value = setting.value, .lock = setting.info.lockedHere}});
    }
    // What applies without it, seen by taking it away for a moment; nothing is saved.
    settings.Drop(keys);
    for (Change& change : changes) change.before.value = settings.Describe(change.key).value;
    settings.Repository().Rollback();
    return changes;
}

std::vector<Change> FileChanges(const SettingsFile& before, const SettingsFile& after)
{
    std::vector<Change> changes;
    for (const auto& [key, entry] : before.Entries()) changes.push_back({key, entry, after.Find(key)});
    for (const auto& [key, entry] : after.Entries()) {
        if (before.Find(key).IsEmpty()) changes.push_back({key, {}, entry});
    }
    return changes;
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    if (arguments.names.size() == 1) {
        console.Say("compare two files, or none for your settings and the administrator's");
        return ExitCode::Misuse;
    }
    ChangeLines lines(arguments.Has("json"));
    ExitCode code = ExitCode::Done;
    if (arguments.names.empty()) {
        Settings settings;
        lines.Head("what applies without them", "the own values");
        lines.Add(OwnChanges(settings));
        code = settings.AfterReading();
    } else {
        const SettingsFile before(arguments.names[0], console), after(arguments.names[1], console);
        if (!before.IsRead() || !after.IsRead()) return ExitCode::Trouble;
        lines.Head(arguments.names[0], arguments.names[1]);
        lines.Add(FileChanges(before, after));
        if (!before.IsWhole() || !after.IsWhole()) code = ExitCode::Refused;
    }
    console.Print(lines.Text());
    return code | (lines.Count() > 0 ? ExitCode::Refused : ExitCode::Done);
}

constexpr Option kOptions[] = {kJsonOption};

constexpr Example kExamples[] = {
    {"kivsettings diff", "what you changed"},
    {"kivsettings diff --layer /etc/kiv/site", "what the site's layer changes"},
    {"kivsettings diff old.kivsettings new.kivsettings", "two files"},
    {"kivsettings diff >/dev/null && echo untouched", "the exit code is 1 when something differs"},
};

} // namespace

constexpr Command kDiffCommand{
    .name = "diff",
    .arguments = "[FILE FILE]",
    .most = 2,
    .summary = "compare own values with the administrator's, or two files",
    .description =
        "Without files, compares the user's settings (with --layer, the layer's) with what applies\n"
        "without them: the administrator's values and the defaults. Else compares what two settings\n"
        "files say. Lines are as in settings files, after - as it was and after + as it is. The exit\n"
        "code is 1 when something differs.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

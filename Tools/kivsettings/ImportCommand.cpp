#include "Arguments.h"
#include "ChangeLines.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"
#include "SettingsFile.h"
#include "ValueText.h"

#include "Settings/KivSettingLine.h"

namespace {

// Why a line of the file cannot be taken, or empty.
std::string Fault(const std::string& key, const KivSettingEntry& entry, bool force)
{
    if (KivIsSettingPattern(key)) return {};
    const KivDrwCatalogueEntry* const known = KivDrwCatalogue::Find(key);
    if (!known) return force ? "" : KeySelection::UnknownKeyMessage(key);
    const std::string wrong = KivHasValue(entry.value) ? WrongWith(*known, entry.value) : "";
    return wrong.empty() ? wrong : key + ": " + wrong;
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    Settings settings;
    const SettingsFile file(arguments.names[0], console);
    if (!file.IsRead()) return ExitCode::Trouble;
    const bool isAdministrator = settings.Repository().IsAdministrator();
    ExitCode code = file.IsWhole() ? ExitCode::Done : ExitCode::Refused;
    std::vector<Change> changes;
    for (const auto& [key, entry] : file.Entries()) {
        const Setting now = settings.Describe(key);
        KivSettingEntry before{.value = now.value, .lock = now.info.lockedHere};
        KivSettingEntry after{.value = KivHasValue(entry.value) ? entry.value : now.value,
                              .lock = before.lock || (isAdministrator && entry.lock)};
        if (before.Equals(after)) continue;
        std::string fault = Fault(key, entry, arguments.Has("force"));
        if (fault.empty() && now.info.locked) fault = key + ": " + now.info.Message().ConvertToChar();
        if (fault.empty()) {
            changes.push_back({key, before, after});
        } else {
            console.Say(fault);
            code = code | ExitCode::Refused;
        }
    }
    if (arguments.Has("dry-run")) {
        ChangeLines lines(false);
        lines.Add(changes);
        console.Print(lines.Text());
        return code | settings.AfterReading();
    }
    for (const auto& [key, before, after] : changes) {
        if (!KivSameValue(before.value, after.value)) settings.Write(key, after.value);
        if (before.lock != after.lock) settings.Repository().SetLock(key.c_str(), after.lock);
    }
    return code | settings.Save(console);
}

constexpr Option kOptions[] = {
    {"dry-run", nullptr, "show what would change, and change nothing"},
    kForceOption,
};

constexpr Example kExamples[] = {
    {"kivsettings import --dry-run mine.kivsettings", "shows each line that would change"},
    {"kivsettings import mine.kivsettings", "takes it over in one save"},
    {"kivsettings import --layer /etc/kiv/site site.kivsettings", "into a layer, with the file's locks"},
};

} // namespace

constexpr Command kImportCommand{
    .name = "import",
    .arguments = "FILE",
    .fewest = 1,
    .most = 1,
    .summary = "take over the values of a settings file that differ",
    .description =
        "Takes over what a settings file (\"-\": standard input) says differently from the values in\n"
        "force, in one save. Locked keys, unknown ones and values that do not fit are named and\n"
        "left out (exit code 1). Locks of the file count with --layer alone.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "Json.h"
#include "LayerCheck.h"
#include "Settings.h"

#include "Settings/KivSettingLayers.h"

#include <algorithm>

namespace {

void TakeLayers(LayerCheck& check, const KivUnicodeString& edited)
{
    std::vector<KivUnicodeString> layers = KivSettingLayers::Administrator();
    const auto kind =
        KivSettingLayers::AreEnforced() ? LayerCheck::Locks::Enforced : LayerCheck::Locks::Trial;
    if (!edited.IsEmpty()) {
        // The layer and those outside of it; one that no list names stands alone.
        const auto at = std::find(layers.begin(), layers.end(), edited);
        if (at == layers.end()) return check.Take(edited + Settings::FileName, LayerCheck::Locks::Enforced);
        layers.erase(at + 1, layers.end());
    }
    for (const KivUnicodeString& layer : layers) check.Take(layer + Settings::FileName, kind);
    if (edited.IsEmpty() && !KivSettingLayers::User().IsEmpty()) {
        check.Take(KivSettingLayers::User() + Settings::FileName, LayerCheck::Locks::UsersOwn);
    }
}

JsonObject AsJson(const KivDiagnostic& finding)
{
    constexpr const char* severities[] = {"note", "warning", "error"}; // in the order of Severity
    JsonObject object;
    object.Add("severity", severities[static_cast<std::size_t>(finding.severity)]);
    object.AddUnlessEmpty("file", finding.file.View()).Add("line", finding.line);
    return object.AddUnlessEmpty("key", finding.key.View()).Add("text", finding.text.View());
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    LayerCheck check;
    const KivDiagnosticSink before =
        KivSetDiagnosticSink([&check](const KivDiagnostic& said) { check.Add(said); });
    TakeLayers(check, arguments.Has("layer") ? KivSettingLayers::Absolute(arguments.Value("layer"))
                                             : KivUnicodeString());
    KivSetDiagnosticSink(before);

    JsonArray array;
    for (const KivDiagnostic& finding : check.Findings()) {
        if (arguments.Has("json"))
            console.Print(array.Element(AsJson(finding)));
        else
            console.Print(std::string(finding.Words().View()) + "\n");
    }
    if (arguments.Has("json")) console.Print(array.End());
    if (check.Findings().empty()) {
        console.Say("nothing is wrong in " + std::to_string(check.Files()) +
                    (check.Files() == 1 ? " file" : " files"));
    }
    if (check.IsUnreadable()) return ExitCode::Trouble;
    return check.Findings().empty() ? ExitCode::Done : ExitCode::Refused;
}

constexpr Option kOptions[] = {kJsonOption};

constexpr Example kExamples[] = {
    {"kivsettings check", "every layer of this machine and the user's file"},
    {"kivsettings check --layer /etc/kiv/site", "one layer before it is deployed, and those outside of it"},
    {"kivsettings check --system-layers ./layers", "another machine's list of layers"},
};

} // namespace

constexpr Command kCheckCommand{
    .name = "check",
    .arguments = "",
    .fewest = 0,
    .most = 0,
    .summary = "examine every line of every layer",
    .description =
        "Reads the files of all layers, outermost first, then the user's, and prints each line that\n"
        "is wrong or has no effect, and why: damaged lines, keys that do not exist, values of\n"
        "another type or out of range, keys that stand twice, values and locks of keys that a layer\n"
        "further out locks, locks that are not enforced. The exit code is 1 when there is one, 3\n"
        "when a file cannot be read.",
    .options = kOptions,
    .examples = kExamples,
    .needsLayer = false,
    .run = &Run,
};

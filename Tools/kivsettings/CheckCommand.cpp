#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "Json.h"
#include "LayerCheck.h"
#include "Settings.h"

#include "Base/KivDiagnosticScope.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingOwnFile.h"

namespace {

JsonObject AsJson(const KivSettingFinding& finding)
{
    constexpr const char* kinds[] = {"wrong", "no effect", "open"}; // in the order of Kind
    JsonObject object;
    object.Add("kind", kinds[static_cast<std::size_t>(finding.kind)]);
    object.AddUnlessEmpty("file", finding.file.View()).Add("line", finding.line);
    return object.AddUnlessEmpty("key", finding.key.View()).Add("text", finding.text.View());
}

std::string AsText(const KivSettingFinding& finding)
{
    const KivDiagnostic diagnostic{
        .text = finding.text, .file = finding.file, .line = finding.line, .key = finding.key};
    return diagnostic.Message().ConvertToChar() + std::string("\n");
}

// Drops the damaged lines of the file that is written: the user's, or the layer's.
ExitCode Mend(const KivUnicodeString& layer, Console& console)
{
    // What is wrong is found, and said, afterwards.
    const KivDiagnosticScope scope(
        [](const KivDiagnostic& said) { return said.severity == KivDiagnostic::Severity::Warning; });
    const KivUnicodeString directory = layer.IsEmpty() ? KivSettingLayers::User() : layer;
    KivSettingOwnFile file(KivSettingLayers::FileIn(directory, Settings::Name), !layer.IsEmpty());
    return Settings::AfterSaving(file.Mend(), console);
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    const KivUnicodeString layer =
        arguments.Has("layer") ? KivSettingLayers::Absolute(arguments.Value("layer")) : KivUnicodeString();
    const ExitCode mended = arguments.Has("mend") ? Mend(layer, console) : ExitCode::Done;
    if (mended != ExitCode::Done) return mended;
    const LayerCheck check = CheckLayers(layer);
    JsonArray array;
    for (const KivSettingFinding& finding : check.findings) {
        console.Print(arguments.Has("json") ? array.Element(AsJson(finding)) : AsText(finding));
    }
    if (arguments.Has("json")) console.Print(array.End());
    if (check.findings.empty()) {
        console.Say("nothing is wrong in " + std::to_string(check.files) +
                    (check.files == 1 ? " file" : " files"));
    }
    if (check.isUnreadable) return ExitCode::Trouble;
    return check.findings.empty() ? ExitCode::Done : ExitCode::Refused;
}

constexpr Option kOptions[] = {
    kJsonOption,
    {"mend", nullptr, "first drop the damaged lines of the user's file, or of that of --layer"},
};

constexpr Example kExamples[] = {
    {"kivsettings check", "every layer of this machine and the user's file"},
    {"kivsettings check --mend", "drops what cannot be read; the file as it was is kept beside it"},
    {"kivsettings check --layer /etc/kiv/site", "one layer before it is deployed, and those outside of it"},
    {"kivsettings check --system-layers ./layers", "another machine's list of layers"},
};

} // namespace

constexpr Command kCheckCommand{
    .name = "check",
    .summary = "examine every line of every layer",
    .description =
        "Reads the files of all layers, outermost first, then the user's, and prints each line that\n"
        "is wrong or has no effect, and why: damaged lines, keys that do not exist, values of\n"
        "another type or out of range, keys that stand twice, values and locks of keys that a layer\n"
        "further out locks, locks that are not enforced. The exit code is 0 when there is nothing to\n"
        "do, 1 when there is a line, 3 when a file cannot be read. --mend drops damaged lines: they\n"
        "say nothing, and a save keeps them. A lock that can be read in one stays, and the file as it\n"
        "was is set aside.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

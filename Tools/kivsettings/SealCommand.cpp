#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "Settings.h"

#include "Settings/KivSettingLayerList.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingOwnFile.h"

namespace {

ExitCode SealList(Console& console)
{
    const KivUnicodeString trouble = KivSettingLayerList::Seal();
    if (trouble.IsEmpty()) return ExitCode::Done;
    console.Say(std::string(KivSettingLayers::SystemFile().View()), trouble.View());
    return ExitCode::Trouble;
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    if (arguments.Has("list") == arguments.Has("layer")) {
        console.Say("say what: the layer of --layer DIR, or --list");
        return ExitCode::Misuse;
    }
    if (arguments.Has("list")) return SealList(console);
    KivSettingOwnFile file(KivSettingLayers::FileIn(KivSettingRepository::EditedLayer(), Settings::Name),
                           true);
    const KivSettingRepository::Receipt receipt = file.Seal();
    if (receipt == KivSettingRepository::Receipt::Nothing) console.Say("the seal fits already");
    return Settings::AfterSaving(receipt, console);
}

constexpr Option kOptions[] = {
    {"list", nullptr, "seal the list of layers, /etc/kiv/layers or that of --system-layers"},
};

constexpr Example kExamples[] = {
    {"kivsettings seal --layer /etc/kiv/site", "takes what an editor has made of the layer's file"},
    {"kivsettings check --layer ./site && kivsettings seal --layer ./site",
     "a layer that was written by hand, before it is rolled out"},
    {"kivsettings seal --list --system-layers ./layers", "the list of layers of other machines"},
};

} // namespace

constexpr Command kSealCommand{
    .name = "seal",
    .summary = "accept an administrator's layer as it stands",
    .description =
        "Ends the file of the layer of --layer with a count and a check sum of what stands before, so\n"
        "that every program notices when it is cut or damaged. A layer whose seal does not fit is not\n"
        "believed: after an edit by hand this is how to accept it. A file that is empty or has damaged\n"
        "lines is not sealed (exit code 3): \"kivsettings check\" names them. The same for the list of\n"
        "layers.",
    .options = kOptions,
    .examples = kExamples,
    .run = &Run,
};

#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "KeySelection.h"

namespace {

ExitCode Run(const Arguments& arguments, Console& console)
{
    std::vector<std::string> keys;
    for (const std::string& name : arguments.names) {
        const auto page = KeySelection::Page(name, console);
        if (!page) return ExitCode::Misuse;
        for (const char* key : KivDrwCatalogue::ResetKeys(*page)) keys.emplace_back(key);
    }
    Settings settings;
    settings.Drop(keys);
    return settings.Save(console);
}

constexpr Example kExamples[] = {
    {"kivsettings reset General", "what the Reset button of the page and OK do"},
    {"kivsettings reset dimension geometry", "two pages in one save"},
};

} // namespace

constexpr Command kResetCommand{
    .name = "reset",
    .arguments = "PAGE...",
    .fewest = 1,
    .most = kAnyNumber,
    .summary = "drop the own values of whole options pages",
    .description = "Drops the user's value of everything that an options page shows, so that the\n"
                   "administrator's values apply, else the defaults; with --layer the layer's values and\n"
                   "locks. The pages are General, Layout, View,\n"
                   "Generation, Geometry, Dimension, Manipulators, Annotation, Compatibility and\n"
                   "Administration.",
    .examples = kExamples,
    .run = &Run,
};

#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "Help.h"

namespace {

ExitCode Run(const Arguments& arguments, Console& console)
{
    if (arguments.names.empty()) {
        console.Print(Overview());
        return ExitCode::Done;
    }
    const std::string words[] = {arguments.names[0], "--help"};
    const Arguments asked = Arguments::Parse(words);
    if (!asked.command) {
        console.Say(asked.problem);
        return ExitCode::Misuse;
    }
    console.Print(HelpOf(*asked.command));
    return ExitCode::Done;
}

constexpr Example kExamples[] = {
    {"kivsettings help", "lists the commands"},
    {"kivsettings help set", "explains one; so does kivsettings set --help"},
};

} // namespace

constexpr Command kHelpCommand{
    .name = "help",
    .arguments = "[COMMAND]",
    .most = 1,
    .summary = "explain the program or one command",
    .description = "Lists the commands, or explains one of them with examples.",
    .examples = kExamples,
    .run = &Run,
};

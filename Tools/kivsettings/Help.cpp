#include "Help.h"

namespace {

constexpr std::size_t kWidth = 26; // of the left column

void AppendRow(std::string& text, const std::string& left, std::string_view right)
{
    text += "  " + left;
    text.append(left.size() < kWidth ? kWidth - left.size() : 1, ' ');
    (text += right) += '\n';
}

void AppendOptions(std::string& text, std::span<const Option> options)
{
    for (const Option& option : options) {
        std::string left = std::string("--") + option.name;
        if (option.value) (left += ' ') += option.value;
        AppendRow(text, left, option.help);
    }
}

} // namespace

std::string Overview()
{
    std::string text = "Usage: kivsettings COMMAND [ARGUMENTS]\n\n"
                       "Reads, changes and examines the drafting settings of a user, or of an\n"
                       "administrator's layer.\n\nCommands:\n";
    for (const Command* command : Commands()) AppendRow(text, command->name, command->summary);
    text += "\nOptions of every command:\n";
    AppendOptions(text, CommonOptions());
    AppendRow(text, "--version", "print the version");
    text += "\nExit codes:\n";
    AppendRow(text, "0", "done");
    AppendRow(text, "1", "something was refused (a locked key), differs or was found wrong");
    AppendRow(text, "2", "the arguments are wrong; nothing was done");
    AppendRow(text, "3", "something could not be read, saved or printed");
    return text + "\n\"kivsettings help COMMAND\" explains a command, with examples.\n";
}

std::string HelpOf(const Command& command)
{
    std::string text = std::string("Usage: kivsettings ") + command.name;
    if (command.arguments[0]) (text += ' ') += command.arguments;
    (text += "\n\n") += command.description;
    text += "\n\nOptions:\n";
    AppendOptions(text, command.options);
    AppendOptions(text, CommonOptions());
    text += "\nExamples:\n";
    for (const Example& example : command.examples) {
        ((text += "  ") += example.command) += "\n      ";
        (text += example.what) += '\n';
    }
    return text;
}

#include "Program/CommandLine.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace {

constexpr CommandLine::Option kOptions[] = {
    {"page", "ValueName", "HelpPage"},         {"screenshot", "ValueDirectory", "HelpScreenshot"},
    {"scale", "ValueNumber", "HelpScale"},     {"scheme", "ValueScheme", "HelpScheme"},
    {"language", "ValueName", "HelpLanguage"}, {"length-unit", "ValueUnit", "HelpLengthUnit"},
    {"admin", "ValueDirectory", "HelpAdmin"},  {"help", nullptr, "HelpHelp"},
    {"version", nullptr, "HelpVersion"},
};

const CommandLine::Option* Named(std::string_view name)
{
    const auto* const found = std::find_if(std::begin(kOptions), std::end(kOptions),
                                           [name](const auto& option) { return name == option.name; });
    return found == std::end(kOptions) ? nullptr : found;
}

bool ReadScale(const std::string& text, double& scale)
{
    double number = 0.0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end || !(number >= 0.5 && number <= 8.0)) return false;
    scale = number;
    return true;
}

void Take(CommandLine& line, std::string_view name, const std::string& value)
{
    const auto wrong = [&line](const char* text, const std::string& about) {
        if (!line.problem) line.problem = {text, about};
    };
    if (value.empty() && Named(name)->value) {
        wrong("WrongNoValue", std::string(name));
    } else if (name == "page") {
        line.page = value;
    } else if (name == "screenshot") {
        line.screenshots = value;
    } else if (name == "scale") {
        if (!ReadScale(value, line.scale)) wrong("WrongScale", value);
    } else if (name == "scheme") {
        if (value == "light")
            line.scheme = DraftingScheme::Light;
        else if (value == "dark")
            line.scheme = DraftingScheme::Dark;
        else if (value == "contrast")
            line.scheme = DraftingScheme::Contrast;
        else
            wrong("WrongScheme", value);
    } else if (name == "language") {
        line.language = value;
    } else if (name == "length-unit") {
        line.lengthUnit = value;
    } else if (name == "admin") {
        line.administrator = value;
    } else {
        (name == "help" ? line.help : line.version) = true;
    }
}

} // namespace

std::span<const CommandLine::Option> CommandLine::Options()
{
    return kOptions;
}

CommandLine CommandLine::Parse(std::span<const std::string> arguments)
{
    CommandLine line;
    const auto wrong = [&line](const char* text, const std::string& about) {
        if (!line.problem) line.problem = {text, about};
    };
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "-h") {
            line.help = true;
            continue;
        }
        const bool isOption = argument.starts_with("--");
        const std::size_t sign = argument.find('=');
        const std::string name =
            isOption ? argument.substr(2, sign == std::string::npos ? sign : sign - 2) : "";
        const Option* const option = Named(name);
        const bool isJoined = sign != std::string::npos;
        if (!option) {
            wrong(argument.starts_with("-") ? "WrongOption" : "WrongArgument", argument);
        } else if (!option->value) {
            if (isJoined) wrong("WrongValue", name);
            Take(line, name, {});
        } else if (isJoined) {
            Take(line, name, argument.substr(sign + 1));
        } else if (i + 1 < arguments.size() && !arguments[i + 1].starts_with("--")) {
            Take(line, name, arguments[++i]);
        } else {
            wrong("WrongNoValue", name);
        }
    }
    return line;
}

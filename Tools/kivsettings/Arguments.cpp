#include "Arguments.h"

#include "NearestNames.h"

#include <algorithm>

namespace {

const Option* Named(std::span<const Option> options, std::string_view name)
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [name](const Option& option) { return name == option.name; });
    return found == options.end() ? nullptr : &*found;
}

// Any command's, for options may stand before the command.
const Option* AnyNamed(std::string_view name)
{
    if (const Option* option = Named(CommonOptions(), name)) return option;
    for (const Command* command : Commands()) {
        if (const Option* option = Named(command->options, name)) return option;
    }
    return nullptr;
}

} // namespace

std::string_view Arguments::Value(std::string_view option) const
{
    const auto found = _options.find(option);
    return found == _options.end() ? std::string_view() : std::string_view(found->second);
}

void Arguments::Wrong(const std::string& what)
{
    if (problem.empty()) problem = what;
}

void Arguments::TakeCommand(const std::string& word)
{
    std::vector<std::string_view> known;
    for (const Command* candidate : Commands()) {
        if (word == candidate->name) command = candidate;
        known.emplace_back(candidate->name);
    }
    if (!command) Wrong("there is no command \"" + word + "\"" + DidYouMean(word, known));
}

std::size_t Arguments::TakeOption(std::span<const std::string> words)
{
    const std::string& word = words[0];
    const std::size_t sign = word.find('=');
    const bool isJoined = sign != std::string::npos;
    const std::string name = word.substr(2, isJoined ? sign - 2 : sign);
    if (name == "version" && !isJoined) {
        version = true;
        return 1;
    }
    const Option* const option = AnyNamed(name);
    if (!option) {
        Wrong("there is no option \"--" + name + "\"");
    } else if (!option->value) {
        if (isJoined) Wrong("the option --" + name + " takes no value");
        _options[name];
    } else if (isJoined) {
        if (sign + 1 == word.size()) Wrong("the option --" + name + " needs a value: " + option->value);
        _options[name] = word.substr(sign + 1);
    } else if (words.size() > 1 && !words[1].empty() && !words[1].starts_with("--")) {
        _options[name] = words[1];
        return 2;
    } else {
        Wrong("the option --" + name + " needs a value: " + option->value);
    }
    return 1;
}

void Arguments::Check()
{
    if (!command) return;
    for (const auto& [name, value] : _options) {
        if (!Named(CommonOptions(), name) && !Named(command->options, name))
            Wrong("the command has no option --" + name);
    }
    if (Has("help")) return;
    const auto count = static_cast<int>(names.size());
    if (count < command->fewest) Wrong("arguments are missing: " + std::string(command->arguments));
    if (count > command->most)
        Wrong("there are too many arguments: \"" + names[static_cast<std::size_t>(command->most)] + "\"");
    if (command->needsLayer && !Has("layer")) Wrong("say which administrator's layer: --layer DIR");
}

Arguments Arguments::Parse(std::span<const std::string> words)
{
    Arguments arguments;
    bool takesOptions = true;
    for (std::size_t at = 0; at < words.size();) {
        const std::string& word = words[at];
        if (takesOptions && word == "--") {
            takesOptions = false;
            ++at;
        } else if (takesOptions && word.starts_with("--")) {
            at += arguments.TakeOption(words.subspan(at));
        } else if (takesOptions && word == "-h") {
            arguments._options["help"];
            ++at;
        } else if (takesOptions && word.size() > 1 && word[0] == '-') {
            arguments.Wrong("there is no option \"" + word + "\"");
            ++at;
        } else {
            if (arguments.command || !arguments.problem.empty())
                arguments.names.push_back(word);
            else
                arguments.TakeCommand(word);
            ++at;
        }
    }
    arguments.Check();
    return arguments;
}

#pragma once

#include "Command.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What was asked for on the command line. Nothing is done yet.
class Arguments {
public:
    // The arguments without the program's name. Options are "--name", "--name value" or "--name=value",
    // before or after the command; "--" ends them.
    static Arguments Parse(std::span<const std::string> words);

    const Command* command = nullptr;
    std::vector<std::string> names; // what is no option
    std::string problem;            // the first thing that is wrong, or empty
    bool version = false;

    bool Has(std::string_view option) const { return _options.find(option) != _options.end(); }
    // The value of an option, or empty.
    std::string_view Value(std::string_view option) const;

private:
    void Wrong(const std::string& what);
    void TakeCommand(const std::string& word);
    // Takes the value as well; answers how many words that were.
    std::size_t TakeOption(std::span<const std::string> words);
    void Check();

    std::map<std::string, std::string, std::less<>> _options;
};

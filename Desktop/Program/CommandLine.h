#pragma once

#include "Program/DraftingScheme.h"

#include <optional>
#include <span>
#include <string>

// What was asked for on the command line of the drafting window. Nothing is done yet.
struct CommandLine {
    std::string page;                       // the tab of the options to open; empty: none
    std::optional<std::string> screenshots; // the directory of the pictures; none: a window on the screen
    std::string language, lengthUnit;       // empty: as the program finds them
    std::string administrator;              // the layer to edit; empty: the user's own settings
    DraftingScheme scheme = DraftingScheme::System;
    double scale = 1.0; // of pictures, 0.5 to 8
    bool help = false, version = false;

    // The first thing that is wrong: a text of the catalogue, and what it is about. The rest was read all the
    // same.
    struct Problem {
        const char* text;
        std::string about;
    };
    std::optional<Problem> problem;

    // The arguments without the program's name. Each option is "--name value" or "--name=value".
    static CommandLine Parse(std::span<const std::string> arguments);

    struct Option {
        const char* name;
        const char* value; // the text that names its value, or null for none
        const char* help;  // the text that explains it
    };
    // In the order in which help lists them.
    static std::span<const Option> Options();
};

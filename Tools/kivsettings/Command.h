#pragma once

#include "ExitCode.h"

#include <span>

class Arguments;
class Console;

// One option of a command line, "--name" or "--name VALUE".
struct Option {
    const char* name;
    const char* value; // what help calls its value, or null for none
    const char* help;
};

struct Example {
    const char* command;
    const char* what;
};

// One command of the program: everything that parsing, help and the run need to know of it.
struct Command {
    const char* name;
    const char* arguments = ""; // as help shows them
    int fewest = 0;             // arguments, and at most this many
    int most = 0;
    const char* summary; // one line
    const char* description;
    std::span<const Option> options = {};
    std::span<const Example> examples;
    bool needsLayer = false; // works on an administrator's layer alone
    ExitCode (*run)(const Arguments&, Console&);
};

inline constexpr int kAnyNumber = 1 << 20;

// In the order of help.
std::span<const Command* const> Commands();
// The options that every command takes.
std::span<const Option> CommonOptions();

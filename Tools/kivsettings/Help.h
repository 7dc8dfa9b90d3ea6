#pragma once

#include "Command.h"

#include <string>

// All commands, one a line, and how the program ends.
std::string Overview();
// One command with its options and examples.
std::string HelpOf(const Command& command);

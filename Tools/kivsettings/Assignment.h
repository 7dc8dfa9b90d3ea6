#pragma once

#include "ExitCode.h"

#include "Settings/KivSettingValue.h"

#include <optional>
#include <string>
#include <vector>

class Arguments;
class Console;
class Settings;

// "KEY=VALUE" of a command line, checked against the catalogue.
struct Assignment {
    std::string key;
    KivSettingValue value;
};

namespace Assignments {

// Those that hold an equals sign; none at all, and each fault said, when one is wrong: an unknown key (unless
// the arguments have --force), a value of another type or out of range, a key that stands twice.
std::optional<std::vector<Assignment>> Parse(const std::vector<std::string>& words, const Settings& settings,
                                             const Arguments& arguments, Console& console);

// Stores them in one save. Those that are locked are said with their locker; the others are stored all the
// same.
ExitCode Store(const std::vector<Assignment>& assignments, Settings& settings, Console& console);

} // namespace Assignments

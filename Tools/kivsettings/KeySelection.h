#pragma once

#include "KivDrwCatalogue.h"
#include "Settings.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Console;

// Which keys a command line names.
namespace KeySelection {

// The keys that the names and patterns ("Dim*", "*Color?") stand for, each once. A name that stands for
// nothing is said with the nearest names, and there is no answer. force: a plain name is taken unknown, too.
std::optional<std::vector<std::string>> Named(const Settings& settings, const std::vector<std::string>& names,
                                              bool force, Console& console);

// The page of a name, whatever its case; none is said.
std::optional<KivDrwGroup> Page(std::string_view name, Console& console);

// "; did you mean Ruler?", or empty.
std::string Suggestion(std::string_view key);
// "there is no setting "Rulr"; did you mean Ruler?"
std::string UnknownKeyMessage(std::string_view key);

bool IsPattern(std::string_view name);
// Whether a name fits at least one of the patterns; no pattern fits everything.
bool Fits(const std::string& key, const std::vector<std::string>& patterns);

} // namespace KeySelection

#pragma once

#include "Program/CommandLine.h"

#include <iosfwd>
#include <optional>

// What the program does before it has a window: it takes the language, the unit and the layer of the command
// line, and gets the options ready.
class DraftingStart {
public:
    static constexpr int kDone = 0, kCannotWrite = 1, kMisused = 2;

    // The code to end with at once, or none when the window can open. Says on err what is wrong, and on out
    // what was asked for.
    static std::optional<int> Prepare(const CommandLine& line, std::ostream& out, std::ostream& err);

private:
    static void SayHelp(std::ostream& out);
    static std::optional<int> ChooseLanguage(const CommandLine& line, std::ostream& err);
    static std::optional<int> ChooseUnit(const CommandLine& line, std::ostream& err);
    static std::optional<int> ChooseLayer(const CommandLine& line, std::ostream& err);
    static std::optional<int> FindPage(const CommandLine& line, std::ostream& err);
};

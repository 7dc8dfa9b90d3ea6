#pragma once

#include "ExitCode.h"

#include "Base/KivDiagnosticScope.h"

#include <set>
#include <string>
#include <string_view>

// Data on standard output, messages on standard error, and what happens when the output is gone.
class Console {
public:
    // Takes the framework's diagnostics as well, each once.
    Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    // Keeps a program that was started with a closed standard stream from taking a settings file for it, and
    // turns a broken pipe into an error. Called before anything is opened.
    static void Secure();

    void Print(std::string_view data);

    // Everything printed so far has left the program. False, and said once, when it could not.
    bool Flush();

    // One sentence or more for the person; repeated ones are said once.
    void Say(std::string_view message);
    // The same about one setting.
    void Say(std::string_view key, std::string_view message);

    // Trouble when the output was lost.
    ExitCode Finish(ExitCode code);

private:
    std::string _data;
    std::set<std::string, std::less<>> _said;
    bool _isLost = false;
    KivDiagnosticScope _diagnostics;
};

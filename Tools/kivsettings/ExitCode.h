#pragma once

// How the program ends; documented in the help and in the manual page.
enum class ExitCode {
    Done = 0,
    Refused = 1, // a locked key, a difference, a finding
    Misuse = 2,  // wrong arguments; nothing was done
    Trouble = 3, // something could not be read, saved or printed
};

// The worse of two.
inline ExitCode operator|(ExitCode left, ExitCode right)
{
    return left < right ? right : left;
}

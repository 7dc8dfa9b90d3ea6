#pragma once

#include <cerrno>
#include <string>
#include <vector>

// What the store asks of the operating system passes here first: this program's own open, read, write and so
// on come before the C library's. A call can be made to fail, and what it did to the disk is written down.
namespace Faults {

// What is asked; a set of them says where a fault may strike.
enum Call : unsigned {
    Open = 1,
    Create = 2, // an open that may make the file
    Read = 4,
    Write = 8,
    Flush = 16,
    Rename = 32,
    Unlink = 64,
    Close = 128,
    Lock = 256,
    Look = 512,       // stat and its kin
    Directory = 1024, // mkdir
    Change = 2048,    // of permissions or owner
    Memory = 4096,    // allocation
    Any = Memory - 1
};

enum class Effect {
    Error, // the call does nothing and answers the error
    Half,  // half of what was asked for is read or written
    End,   // a read answers the end of the file
    Crash, // the process ends before the call
    Torn,  // half of what was asked for is written, and the process ends
    Wait   // the call waits until the fault is disarmed
};

struct Fault {
    const char* name;
    unsigned calls;
    Effect effect;
    int error = 0;
    bool lasts = false;      // strikes every such call from the first on
    bool isHarmless = false; // nobody is to notice it
};

// The exit code of a process that a fault has ended.
inline constexpr int kCrashed = 86;

// From now on the at-th call (1: the next) that the fault may strike is struck. Only calls count that concern
// a path with this text in it.
void Arm(const Fault& fault, int at, const std::string& where);

struct Struck {
    int times = 0;
    unsigned calls = 0;
};
// Ends it and tells how often and where it has struck.
Struck Disarm();
// The same while it goes on.
Struck SoFar();

// For those who give memory: whether there shall be none this time.
bool IsMemoryStruck();

// What a call that succeeded did to the disk.
struct Operation {
    Call call;
    std::string path;
    std::string to;    // of a rename
    std::string bytes; // of a write: all that the file holds after it
};
// Writes down what is done to paths with this text in them. An empty text ends it.
void Record(const std::string& where);
// What has been written down since.
std::vector<Operation> Recorded();

} // namespace Faults

#pragma once

#include "Command.h"

// Each in a file of its own.
extern const Command kListCommand, kGetCommand, kSetCommand, kUnsetCommand, kResetCommand, kLockCommand,
    kUnlockCommand, kWhereCommand, kDiffCommand, kExportCommand, kImportCommand, kCheckCommand, kSealCommand,
    kWatchCommand, kHelpCommand;

// Said the same way by every command that has it.
inline constexpr Option kJsonOption{"json", nullptr, "print JSON"};
inline constexpr Option kForceOption{"force", nullptr, "take keys that the catalogue does not know, too"};

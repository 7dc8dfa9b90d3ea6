#include "Commands.h"

namespace {

constexpr const Command* kCommands[] = {
    &kListCommand,   &kGetCommand,    &kSetCommand,   &kUnsetCommand, &kResetCommand,
    &kLockCommand,   &kUnlockCommand, &kWhereCommand, &kDiffCommand,  &kExportCommand,
    &kImportCommand, &kCheckCommand,  &kSealCommand,  &kWatchCommand, &kHelpCommand,
};

constexpr Option kCommon[] = {
    {"layer", "DIR", "work on the administrator's layer in DIR instead of the user's settings"},
    {"system-layers", "FILE",
     "take the list of layers from FILE instead of /etc/kiv/layers; none: there is no list"},
    {"help", nullptr, "explain the command"},
};

} // namespace

std::span<const Command* const> Commands()
{
    return kCommands;
}

std::span<const Option> CommonOptions()
{
    return kCommon;
}

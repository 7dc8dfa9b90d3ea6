#pragma once

#include "Dialog/KivDlgLock.h"

// What a row says of its setting to whoever wants to change it elsewhere: in the words and numbers of the
// command line, not in those of the row.
extern const KivSettingDescriber KivDrwSettingDescriber;

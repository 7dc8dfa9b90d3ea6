#pragma once

#include "Base/KivUnicodeString.h"

// The value of an environment variable, or null when it is not set. The process's own memory: do not free it.
const char* KivGetEnv(const char* name);

// The value of one of the framework's official variables: the environment's, else what the installation
// gives it ("KivInstallPath": the root directory of the installation), else empty.
KivUnicodeString KivGetOfficialVariable(const char* name);

// The directory that holds lib, bin and share of this installation, found from where the framework was
// loaded.
KivUnicodeString KivInstallRoot();

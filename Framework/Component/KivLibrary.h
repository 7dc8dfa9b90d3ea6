#pragma once

#include "Base/KivString.h"

// Loads a library of components and page factories by its name, for the rest of the process: from the
// directories of the environment variable KivLibraryPath (colon separated), else from the installation.
// False, and said, when it is not available.
bool KivLoadLibrary(const KivString& name);

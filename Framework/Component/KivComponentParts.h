#pragma once

#include "Component/KivBaseUnknown.h"

#include <vector>

class KivTieLink;

// What hangs on a component: the adapters that show it under its interfaces and the extensions made for it.
struct KivComponentParts {
    std::vector<KivTieLink*> ties;           // each deletes itself when the component goes
    std::vector<KivBaseUnknown*> extensions; // one reference held on each
};

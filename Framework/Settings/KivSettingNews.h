#pragma once

#include "Base/KivUnicodeString.h"

#include <functional>
#include <set>

// Says what goes wrong in a reading that is repeated: what stays wrong is said once, not every time.
class KivSettingNews {
public:
    // Passes on what the reading says, but for what the one before has said already.
    void Say(const std::function<void()>& read);

private:
    std::set<KivUnicodeString> _said;
};

#pragma once

#include "Settings/KivSettingTable.h"

#include <optional>
#include <string_view>

// Goes through the attributes of a repository that have a value.
class KivSettingEnumeration {
public:
    struct Item {
        std::string_view name;
        const char* type;
    };

    // The next one; none at the end. Where there is none at all because the file cannot be read, one without
    // name and type stands in for them, so that the repository does not pass for an empty one.
    std::optional<Item> Next(const KivSettingTable& table, bool isProtected);

private:
    std::size_t _next = 0; // attribute
    bool _hasAnswered = false;
};

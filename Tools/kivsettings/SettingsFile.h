#pragma once

#include "Settings/KivSettingFile.h"

#include <string>
#include <utility>
#include <vector>

class Console;

// A settings file that the command line names; "-" is standard input. Faults are said.
class SettingsFile {
public:
    using List = std::vector<std::pair<std::string, KivSettingEntry>>;

    SettingsFile(const std::string& path, Console& console);

    bool IsRead() const { return _isRead; }
    // No line is damaged.
    bool IsWhole() const { return _isWhole; }

    // What the file says of each key, in its order; the last line of a key counts.
    const List& Entries() const { return _entries; }
    KivSettingEntry Find(const std::string& key) const;

private:
    bool _isRead = false, _isWhole = false;
    List _entries;
};

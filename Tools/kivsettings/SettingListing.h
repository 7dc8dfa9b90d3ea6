#pragma once

#include "Json.h"
#include "Settings.h"

#include <string>
#include <vector>

// Settings as lists show them: one a line, a tab between the columns, or aligned under a heading.
std::string SettingsAsTable(const std::vector<Setting>& settings, bool isAligned);

// The layer that locks a setting, or "-".
std::string LockOf(const Setting& setting);

// A JSON array of objects.
std::string SettingsAsJson(const std::vector<Setting>& settings);
JsonObject SettingAsJson(const Setting& setting);

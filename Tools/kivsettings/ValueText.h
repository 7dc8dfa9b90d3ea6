#pragma once

#include "KivDrwCatalogue.h"
#include "Settings/KivSettingValue.h"

#include <string>
#include <string_view>

// The value on one line: a text stands bare unless it holds control characters or broken UTF-8, or begins
// with a quotation mark; then it is quoted as in a settings file.
std::string ShownValue(const KivSettingValue& value);

// Reads what a person typed for a setting; packed colors also as 0xRRGGBB or #RRGGBB. Empty on success, else
// what is wrong with it: its type or its range.
std::string ReadTyped(const KivDrwCatalogueEntry& entry, std::string_view typed, KivSettingValue& value);

// Reads a value of a type ("int", "unsigned", "float", "double", "string"); a string is taken as it was
// typed. Empty on success.
std::string ReadTyped(std::string_view type, std::string_view typed, KivSettingValue& value);

// What is wrong with a stored value of a setting: its type or its range. Empty when nothing is.
std::string WrongWith(const KivDrwCatalogueEntry& entry, const KivSettingValue& value);

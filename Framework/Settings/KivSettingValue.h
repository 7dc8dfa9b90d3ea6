#pragma once

#include "Base/KivUnicodeString.h"

#include <string>
#include <string_view>
#include <variant>

// One stored value; std::monostate stands for "no value".
using KivSettingValue = std::variant<std::monostate, int, unsigned int, float, double, KivUnicodeString>;

inline bool KivHasValue(const KivSettingValue& value)
{
    return value.index() != 0;
}

// Equal in type and bit by bit, so that -0.0 differs from 0.0.
bool KivSameValue(const KivSettingValue& left, const KivSettingValue& right);

// Not finite numbers can neither be written nor read.
bool KivIsSound(const KivSettingValue& value);

// The type as the framework names it ("unsigned int"), empty for no value.
const char* KivSettingTypeName(const KivSettingValue& value);

// The type as files name it ("unsigned").
const char* KivSettingTypeWord(const KivSettingValue& value);

// The value as files write it: numbers as short as they round-trip exactly, whatever the locale; strings
// quoted.
void KivAppendSettingText(std::string& text, const KivSettingValue& value);

// The value as a person reads it: strings without quotes.
KivUnicodeString KivShownSettingText(const KivSettingValue& value);

// Reads what follows the "=" of a line. Answers null on success, else what is wrong, and leaves value alone.
const char* KivParseSettingValue(std::string_view typeWord, std::string_view text, KivSettingValue& value);

bool KivIsSettingTypeWord(std::string_view word);

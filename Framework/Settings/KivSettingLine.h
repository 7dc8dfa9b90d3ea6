#pragma once

#include "Settings/KivSettingEntry.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// One line of a settings file.
//
//   [lock] [initial] type Key = value      type: int, unsigned, float, double, string
//   lock Key                               locks the key without giving it a value
//   lock Prefix*                           locks every key that begins so; "lock *" every key
struct KivSettingLine {
    enum class Kind : unsigned char {
        Other,     // blank, comment
        Attribute, // says something about its key
        Unknown,   // has the shape of an attribute without a lock, of a type that this version does not know
        Damaged,   // its value is lost; a lock that can be read still holds
    };

    std::string_view key; // with a pattern's star; empty when it cannot be read
    std::size_t hash = 0; // of the key, as the table wants it
    KivSettingValue value;
    const char* reason = nullptr; // what is wrong with an unknown or damaged line

    std::uint32_t begin = 0; // where it stands in the text, its line end included
    std::uint32_t end = 0;
    int number = 0; // 1-based

    Kind kind = Kind::Other;
    bool lock = false;
    bool isPattern = false; // of a lock on all keys with a prefix
    bool initial = false;

    // Whether something is to be taken from it that concerns its key.
    bool HasStatement() const { return !key.empty() && (lock || KivHasValue(value)); }
};

// Reads the text of one line (without its end) into kind, key, value, marks and reason.
void KivParseSettingLine(std::string_view text, KivSettingLine& line);

// Letters, digits and underscores, no digit in front, at most 255 of them.
bool KivIsSettingKey(std::string_view key);

// The beginning of a key, which may be empty, and a star.
bool KivIsSettingPattern(std::string_view pattern);

// Appends the line that states an entry, without a line end.
void KivAppendSettingLine(std::string& text, const KivSettingChange& change);

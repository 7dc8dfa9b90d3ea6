#pragma once

#include "Base/KivString.h"
#include "Base/KivUnicodeString.h"

#include <span>
#include <string_view>
#include <vector>

// One thing in the files of a repository that an administrator should know of.
struct KivSettingFinding {
    enum class Kind {
        Wrong,    // a line or a file that cannot be used as it stands
        NoEffect, // a line that is sound and changes nothing
        Open,     // the layer does not bind those whom it is meant to bind
    };

    Kind kind = Kind::Wrong;
    KivUnicodeString layer; // what a person calls it
    KivUnicodeString file;
    int line = 0;          // 1-based; 0 for the file as a whole
    KivString key;         // or the pattern of a lock; empty when the line has none that can be read
    KivUnicodeString text; // what is the matter and why, a sentence without a full stop
};

// Looks through every layer's file of the repository of that name, outermost first, and the user's, else the
// edited layer's: what is wrong there, and which locks and values have no effect and why. known: the keys
// that programs read; where it is empty, whatever is given a value somewhere is known. Reads the disk anew
// and changes nothing.
std::vector<KivSettingFinding> KivCheckSettings(std::string_view name, std::span<const char* const> known,
                                                const KivUnicodeString& editedLayer = {});

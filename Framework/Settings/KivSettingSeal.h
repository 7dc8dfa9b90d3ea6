#pragma once

#include "Base/KivUnicodeString.h"

#include <cstddef>
#include <string>
#include <string_view>

// What stands in the first line of a file of ours: "# kivsettings 1", or "# kivsettings 1 sealed".
struct KivSettingHead {
    explicit KivSettingHead(std::string_view text);
    // The line as we write it, without a line end.
    static std::string Line();

    bool isThere = false;  // the line names a version
    bool isKnown = false;  // and it is this one's
    bool isSealed = false; // the last line is to be a seal
    std::size_t begin = 0; // of the line, behind a byte-order mark
    std::size_t end = 0;   // without its line end
};

// The seal of a text file: its last line, a comment that says how many bytes stand before it, and their sum.
//
//   # kivsettings 1 sealed
//   ...
//   # kivsettings seal 117 0123456789abcdef
//
// Since the first line says that there is one, every cut shows, and every flipped bit does.
class KivSettingSeal {
public:
    enum class State {
        None,   // written by hand: nothing is known against it
        Fits,   // as one of our programs wrote it
        Broken, // edited by hand since, cut, or damaged
    };

    static State StateOf(std::string_view text);

    // Where the last line begins, which a seal is.
    static std::size_t BeginOf(std::string_view text);

    // The text with its seal. A first line that names no version gets one before it, behind a byte-order
    // mark; a last line without an end gets one. Seals that stand anywhere in it are taken out, every other
    // line stays byte for byte.
    static std::string Put(std::string text);

    // What a broken one means for the file of an administrator's layer, and how its edit is accepted.
    static KivUnicodeString BrokenInLayer(const KivUnicodeString& file);
};

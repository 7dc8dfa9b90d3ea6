#pragma once

#include "Base/KivListOfUnicodeString.h"
#include "Base/KivResult.h"

#include <optional>
#include <vector>

// What a page offers to choose from, as it declares it.

// Which values show a switch as on.
enum class KivTicked { ForAnyBut0, OnlyFor1 };

// A combo's lines from top to bottom: each with the key of its text in a catalogue and the value that it
// stands for.
struct KivFormChoice {
    struct Line {
        const char* key;
        int value;
    };
    const char* catalogue;
    std::vector<Line> lines;
};

// Delivers names that are found anew whenever the page is shown.
using KivFormNames = HRESULT (*)(KivListOfUnicodeString& names);

// Radio buttons from top to bottom: each with its object name and the value that it stands for. Any other
// value shows the button of `otherwise`, or none.
struct KivFormRadios {
    struct Button {
        const char* name;
        int value;
        short row = -1; // of the frame's grid; without one they stand one below the other
        short columns = 1;
    };
    std::vector<Button> buttons;
    std::optional<int> otherwise = {};
};

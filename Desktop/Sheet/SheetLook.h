#pragma once

// The weight of the visible lines of the sample part.
enum class SheetLine { Standard, Thin, Thick };

// How a window draws its sheet, beside what the settings say.
struct SheetLook {
    SheetLine line = SheetLine::Standard;
    // The sheet's frame and title block are worked on: the views are dimmed.
    bool isBackground = false;

    bool operator==(const SheetLook&) const = default;
};

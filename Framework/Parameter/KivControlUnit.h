#pragma once

#include "Parameter/KivDlgUnit.h"

#include <span>
#include <string_view>

// How a unit writes its values.
enum class KivNotation {
    Decimal,           // 25.4 mm
    FeetInchFraction,  // 2' 3 1/2"
    FeetDecimalInches, // 2' 3.5"
};

// So many of a unit make so many of the stored one. Both numbers are exact (but pi), which 0.001 is not: a
// conversion multiplies by one and divides by the other, so that 20 mm are stored as the double nearest to
// 0.02.
struct KivUnitRatio {
    double shown;
    double stored;
};

// All that is known of one unit of a control. A unit written in feet and inches counts in inches.
struct KivControlUnit {
    KivDlgUnit number;
    KivDlgMagnitude magnitude;
    std::string_view name; // the name in the parameter engine; empty for plain numbers
    KivUnitRatio ratio;
    KivNotation notation;
    int denominator;         // the finest fraction of an inch, or 0 where none are written
    std::string_view suffix; // what follows the number, with its space; UTF-8
    std::string_view words;  // further names and symbols, with a space between them

    double ToShown(double stored) const { return stored * ratio.shown / ratio.stored; }
    double ToStored(double shown) const { return shown * ratio.stored / ratio.shown; }

    // Whether a word is the name or another name of the unit; case does not matter.
    bool IsCalled(std::string_view word) const;

    // The unit with this number; a number that is no unit's gets the unit of plain numbers.
    static const KivControlUnit& Of(KivDlgUnit number);

    // The unit of a magnitude with exactly this name in the parameter engine, or null.
    static const KivControlUnit* Named(std::string_view name, KivDlgMagnitude magnitude);

    // The unit that a person calls so ("MM", "mm", "inch", "ft", "°"), of whichever magnitude, or null.
    static const KivControlUnit* Find(std::string_view word);

    // Every unit once, plain numbers first.
    static std::span<const KivControlUnit> All();
};

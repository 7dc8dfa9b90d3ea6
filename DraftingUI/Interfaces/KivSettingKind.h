#pragma once

#include "Parameter/KivDlgUnit.h"
#include "Settings/KivSettingValue.h"

#include <optional>
#include <span>

// One of the few values that a setting may have.
struct KivSettingChoice {
    const char* name = nullptr; // the key of its text in the kind's catalogue, else its radio button's name
    int value = 0;
};

// What the value of a setting means, and which values make sense: for the page that edits it, the command
// line and the tests alike. Reading takes any value as it stands; whoever lets a person enter one asks here.
// Kinds are constants: who is given one may keep a reference.
struct KivSettingKind {
    enum class Color {
        None,
        Component, // of the color that the setting and its two neighbors are: red, green, blue, in this order
        Packed,    // 0xRRGGBB
    };

    const char* name = ""; // as a person calls it, with its unit; English

    // As it is stored. Both ends of the range are allowed; a text has none.
    double minimum = 0.0;
    double maximum = 0.0;
    double step = 0.0;

    // How a field shows it: in the user's unit of a magnitude, which it keeps in meters, radians or seconds.
    // Two factors, each as it is: neither is computed from the other, so that each direction rounds as it
    // always has.
    KivDlgMagnitude magnitude = KivDlgMagnitudeNone;
    double shownPerStored = 1.0;
    double storedPerShown = 1.0;
    int decimals = 3;             // at most
    const char* format = nullptr; // of a number without a magnitude, as of printf, instead of the decimals
    double initial = 0.0;         // what the field keeps until it is filled
    bool cutsFractions = false;   // of a whole number: a fraction that is typed is cut, not refused

    // What there is to choose from, in the order in which it is offered.
    const char* catalogue = nullptr; // of the names
    KivSettingChoice choices[4] = {};
    std::optional<int> otherwise =
        {}; // the choice that any further value counts as; none: no choice is shown

    bool isOnFor1Alone = false; // a switch; others are on for any value but 0
    Color color = Color::None;

    constexpr bool HasRange() const { return minimum < maximum; }
    // Whether a number lies in the range; every text does.
    bool Holds(const KivSettingValue& value) const;
    constexpr std::span<const KivSettingChoice> Choices() const
    {
        std::size_t count = 0;
        while (count < std::size(choices) && choices[count].name) ++count;
        return {choices, count};
    }
};

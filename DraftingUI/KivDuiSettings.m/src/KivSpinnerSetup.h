#pragma once

#include "Parameter/KivDlgUnit.h"

// How a spinner of a measure is set up. Range and step are in the spinner's unit, meters or radians.
struct KivSpinnerSetup {
    KivDlgMagnitude magnitude = KivDlgMagnitudeLength; // shown in the user's unit of it
    double minimum = 0.0;
    double maximum = 0.0;
    double step = 0.0;
    double shownPerStored = 1.0; // two factors, each as it is: neither is computed from the other
    double storedPerShown = 1.0;
    double initial = 0.0; // until the page is filled
    int precision = 3;    // decimals at most
};

// How a spinner of a whole number is set up: so many values from the least to the greatest.
struct KivCountSetup {
    float minimum = 0.0F;
    float maximum = 0.0F;
    int values = 0;
};

// How a spinner of a whole number is set up that is typed as a real one: what is typed is cut.
struct KivWholeSetup {
    KivDlgUnit unit = KivDlgUnitNone;
    double minimum = 0.0;
    double maximum = 0.0;
    double step = 1.0;
    double initial = 0.0; // until the page is filled
    int precision = 3;
    int width = 5; // characters
    unsigned long style = 0;
};

// The visible width of every spinner of a page, in characters.
inline constexpr int kKivSpinnerWidth = 5;

#pragma once

#include "KivDrwCatalogue.h"

// What the number of a setting stands for, and which numbers make sense. Reading takes any value as it
// stands; whoever lets a person enter one asks here.
struct KivDrwValueKind {
    const char* name; // as a person calls it, with its unit
    double minimum;   // both ends are allowed; a text has none
    double maximum;

    bool HasRange() const { return minimum < maximum; }
    // Whether a number lies in the range; every text does.
    bool Holds(const KivDrwValue& value) const;
};

namespace KivDrwCatalogue {

const KivDrwValueKind& KindOf(const KivDrwRow& row);

} // namespace KivDrwCatalogue

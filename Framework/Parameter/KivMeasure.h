#pragma once

#include "Base/KivUnicodeString.h"
#include "Parameter/KivDlgUnit.h"

#include <optional>

// Lengths, angles and plain numbers as a person reads and types them. Stored values are meters, radians and
// seconds. Nothing but KivDecimalMark tells how a locale writes them.
class KivMeasure {
public:
    // A stored value in a unit, with its suffix: "20 mm", "0.787 in", "15°", "2' 3 1/2\"".
    // Decimals are at most precision (see KivPrintDecimal), without zeros at their end, so 0 is "0 mm".
    // Fractions of an inch are as fine as the unit has them, reduced, whatever the precision; full inches and
    // feet are carried, parts that are zero are left out ("2'", "1/2\""), and from 1e14 inches on feet are
    // not split off. What is not finite is "∞ mm", "-∞ mm" or "? mm".
    static KivUnicodeString Print(double stored, KivDlgUnit unit, int precision);

    // The stored value of a typed text. A number without a unit is in the current one (in inches, where that
    // one writes feet and inches); any unit of the same magnitude may be named. Understood are comma and
    // point as decimal mark, signs, exponents, fractions ("3 1/2\"", "½"), feet with inches ("2'",
    // "2' 3.5\"", "2'-3 1/2\"", "2 ft 3 in", "2'3") and typographic spaces, primes and minus signs. Plain
    // numbers take neither units nor fractions. False, and stored is untouched, for anything else: no number,
    // more than one decimal mark, digits in groups, a division by zero, a unit of another magnitude, text
    // left over, a number beyond the range of doubles, more than 256 bytes.
    static bool Read(const KivUnicodeString& text, KivDlgUnit current, double& stored);

    // Whether a mark in a text that is read as a decimal one may have been meant to group thousands: "1,000",
    // where a point is the decimal mark. The two texts that say it without doubt, "1" and "1000"; else none.
    struct Doubt {
        KivUnicodeString decimal;
        KivUnicodeString thousands;
    };
    static std::optional<Doubt> DoubtOf(const KivUnicodeString& text);
};

#pragma once

#include <limits>

// A real number cut towards zero; one that no int can hold, of either sign or none, gives the greatest int,
// deliberately.
inline int KivWholeOf(double value)
{
    constexpr double kGreatest = std::numeric_limits<int>::max();
    return value > -kGreatest - 2.0 && value < kGreatest + 1.0 ? static_cast<int>(value)
                                                               : std::numeric_limits<int>::max();
}

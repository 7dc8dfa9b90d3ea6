#pragma once

// The names under which the parameter engine knows its magnitudes.
class KivParmDictionary {
public:
    static constexpr const char* LengthType = "LENGTH";
    static constexpr const char* AngleType = "ANGLE";
};

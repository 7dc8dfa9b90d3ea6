#pragma once

#include "Base/KivString.h"
#include "Parameter/KivDlgUnit.h"

#include <optional>
#include <utility>

// The names under which the parameter engine knows its magnitudes.
class KivParmDictionary {
public:
    static constexpr const char* LengthType = "LENGTH";
    static constexpr const char* AngleType = "ANGLE";
};

// A unit of the parameter engine. It may be one that no control can show: KivControlUnit::Named tells.
class KivParmUnit {
public:
    explicit KivParmUnit(KivString name) : _name(std::move(name)) {}

    const KivString& Name() const { return _name; }

private:
    KivString _name;
};

// A magnitude of the parameter engine, and the unit that the user has chosen for it.
class KivParmMagnitude {
public:
    KivParmMagnitude(const KivString& type, KivDlgMagnitude kind, const KivString& unit)
        : _type(type), _kind(kind), _unit(KivParmUnit(unit))
    {}

    const KivString& Type() const { return _type; }
    KivDlgMagnitude Kind() const { return _kind; }

    // The current unit, or null when there is none. It belongs to the magnitude and lives until the unit
    // changes.
    const KivParmUnit* CurrentUnit() const { return _unit ? &*_unit : nullptr; }

private:
    friend class KivParmEngine; // changes are made there, where listeners are told

    KivString _type;
    KivDlgMagnitude _kind;
    std::optional<KivParmUnit> _unit;
};

#pragma once

#include "Base/KivString.h"

#include <utility>

// A unit of the parameter engine. It may be one that no control can show: KivControlUnit::Named tells.
class KivParmUnit {
public:
    explicit KivParmUnit(KivString name) : _name(std::move(name)) {}

    const KivString& Name() const { return _name; }

private:
    KivString _name;
};

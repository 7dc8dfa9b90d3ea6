#pragma once

#include "Base/KivBasicString.h"

// An identifier in 8-bit characters: object names, keys, class and command names.
class KivString : public KivBasicString<KivString> {
public:
    using KivBasicString::KivBasicString;
};

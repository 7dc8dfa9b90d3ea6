#pragma once

#include "Base/KivBasicString.h"
#include "Base/KivString.h"

// Text that a person reads or types, and names of files; UTF-8.
class KivUnicodeString : public KivBasicString<KivUnicodeString> {
public:
    using KivBasicString::KivBasicString;
    KivUnicodeString(const KivString& text) : KivBasicString(text.View()) {}

    // 0 when both are equal, negative when this one comes first, positive when it comes after.
    int Compare(const KivUnicodeString& other) const { return _text.compare(other._text); }

    // Lower-cases the letters A to Z; other characters stay.
    void ToLower();

    // The bytes from a 0-based start; a range beyond the end is cut.
    KivUnicodeString SubString(int start, int length) const;
};

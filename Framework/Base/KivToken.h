#pragma once

#include "Base/KivUnicodeString.h"

#include <cstddef>
#include <string_view>

// Cuts a text into tokens, from left to right.
class KivToken {
public:
    explicit KivToken(const KivUnicodeString& text) : _text(text) {}

    // The next token that is not empty; the empty string once there is none. Any character of separators ends
    // a token.
    KivUnicodeString GetNextToken(std::string_view separators);

private:
    KivUnicodeString _text;
    std::size_t _next = 0;
};

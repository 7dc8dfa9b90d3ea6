#include "Base/KivUnicodeString.h"

void KivUnicodeString::ToLower()
{
    // Not the C library's function: it depends on the process's locale.
    for (char& c : _text) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
}

KivUnicodeString KivUnicodeString::SubString(int start, int length) const
{
    if (start < 0 || length <= 0 || start >= GetLengthInByte()) return {};
    return KivUnicodeString(
        std::string_view(_text).substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length)));
}

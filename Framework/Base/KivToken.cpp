#include "Base/KivToken.h"

#include <algorithm>

KivUnicodeString KivToken::GetNextToken(std::string_view separators)
{
    const std::string_view text = _text.View();
    const std::size_t start = std::min(text.find_first_not_of(separators, _next), text.size());
    const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
    _next = end;
    return KivUnicodeString(text.substr(start, end - start));
}

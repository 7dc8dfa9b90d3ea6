#pragma once

#include <string>
#include <string_view>

// Appends a text in double quotes. Quotes, backslashes and control characters are escaped (\" \\ \n \r \t
// \xHH), so that any text stands on one line; bytes that are no UTF-8 too, so that the file stays UTF-8.
void KivAppendQuoted(std::string& to, std::string_view text);

// The opposite. False when the text is not quoted from its first to its last character, holds an escape that
// does not exist or is no UTF-8.
bool KivUnquote(std::string_view quoted, std::string& text);

bool KivIsUtf8(std::string_view text);

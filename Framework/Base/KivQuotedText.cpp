#include "Base/KivQuotedText.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

void AppendHex(std::string& to, unsigned char byte)
{
    constexpr char digits[] = "0123456789abcdef";
    to += "\\x";
    to += digits[byte >> 4];
    to += digits[byte & 15];
}

// How many bytes follow a first byte, or -1.
int Followers(unsigned char first)
{
    if (first < 0x80) return 0;
    if (first >= 0xc2 && first < 0xe0) return 1;
    if (first >= 0xe0 && first < 0xf0) return 2;
    if (first >= 0xf0 && first < 0xf5) return 3;
    return -1;
}

} // namespace

bool KivIsUtf8(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        std::uint64_t eight = 0;
        if (text.size() - at >= sizeof eight) {
            std::memcpy(&eight, text.data() + at, sizeof eight);
            if ((eight & 0x8080808080808080U) == 0) {
                at += sizeof eight;
                continue;
            }
        }
        const auto first = static_cast<unsigned char>(text[at]);
        const int followers = Followers(first);
        if (followers < 0 || text.size() - at <= static_cast<std::size_t>(followers)) return false;
        unsigned int code = followers == 0 ? first : first & (0x3fU >> followers);
        for (int i = 1; i <= followers; ++i) {
            const auto next = static_cast<unsigned char>(text[at + static_cast<std::size_t>(i)]);
            if ((next & 0xc0U) != 0x80U) return false;
            code = code << 6 | (next & 0x3fU);
        }
        // Overlong forms, surrogates and what lies beyond the last code point.
        if (followers == 2 && (code < 0x800 || (code >= 0xd800 && code < 0xe000))) return false;
        if (followers == 3 && (code < 0x10000 || code > 0x10ffff)) return false;
        at += static_cast<std::size_t>(followers) + 1;
    }
    return true;
}

void KivAppendQuoted(std::string& to, std::string_view text)
{
    const bool utf8 = KivIsUtf8(text);
    to += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            (to += '\\') += c;
        else if (c == '\n')
            to += "\\n";
        else if (c == '\r')
            to += "\\r";
        else if (c == '\t')
            to += "\\t";
        else if (byte < 0x20 || byte == 0x7f || (byte >= 0x80 && !utf8))
            AppendHex(to, byte);
        else
            to += c;
    }
    to += '"';
}

bool KivUnquote(std::string_view quoted, std::string& text)
{
    if (quoted.size() < 2 || quoted.front() != '"' || quoted.back() != '"') return false;
    const std::string_view inner = quoted.substr(1, quoted.size() - 2);
    if (!KivIsUtf8(inner)) return false;
    if (inner.find('\\') == inner.npos && inner.find('"') == inner.npos) { // as a rule
        text = inner;
        return true;
    }
    text.clear();
    text.reserve(inner.size());
    for (std::size_t at = 0; at < inner.size(); ++at) {
        char c = inner[at];
        if (c == '"') return false;
        if (c == '\\') {
            if (++at == inner.size()) return false;
            c = inner[at];
            if (c == 'n')
                c = '\n';
            else if (c == 'r')
                c = '\r';
            else if (c == 't')
                c = '\t';
            else if (c == 'x') {
                unsigned int byte = 0;
                const std::string_view hex = inner.substr(at + 1, 2);
                const auto read = std::from_chars(hex.data(), hex.data() + hex.size(), byte, 16);
                if (hex.size() != 2 || read.ptr != hex.data() + 2) return false;
                c = static_cast<char>(byte);
                at += 2;
            } else if (c != '"' && c != '\\')
                return false;
        }
        text += c;
    }
    return true;
}

#include "Json.h"

#include "Base/KivQuotedText.h"

namespace {

// The length of the UTF-8 character that a text begins with, or 0 for bytes that are none.
std::size_t CharacterLength(std::string_view text)
{
    for (std::size_t length = 1; length <= 4 && length <= text.size(); ++length) {
        if (KivIsUtf8(text.substr(0, length))) return length;
    }
    return 0;
}

void AppendQuoted(std::string& to, std::string_view text)
{
    to += '"';
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        const auto byte = static_cast<unsigned char>(text[0]);
        if (length == 0) {
            to += "\\ufffd";
        } else if (byte == '"' || byte == '\\') {
            (to += '\\') += text[0];
        } else if (byte < 0x20 || byte == 0x7f) {
            constexpr char digits[] = "0123456789abcdef";
            to += "\\u00";
            to += digits[byte >> 4];
            to += digits[byte & 15];
        } else {
            to += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    to += '"';
}

} // namespace

JsonObject& JsonObject::AddPlain(std::string_view name, std::string_view json)
{
    if (!_members.empty()) _members += ", ";
    AppendQuoted(_members, name);
    (_members += ": ") += json;
    return *this;
}

JsonObject& JsonObject::Add(std::string_view name, std::string_view text)
{
    std::string quoted;
    AppendQuoted(quoted, text);
    return AddPlain(name, quoted);
}

JsonObject& JsonObject::Add(std::string_view name, const KivSettingValue& value)
{
    if (!KivHasValue(value)) return AddPlain(name, "null");
    const KivUnicodeString text = KivShownSettingText(value);
    return std::holds_alternative<KivUnicodeString>(value) ? Add(name, text.View())
                                                           : AddPlain(name, text.View());
}

JsonObject& JsonObject::AddUnlessEmpty(std::string_view name, std::string_view text)
{
    return text.empty() ? AddPlain(name, "null") : Add(name, text);
}

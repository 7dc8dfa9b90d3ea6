#include "Settings/KivSettingLine.h"

#include <algorithm>

namespace {

constexpr std::string_view kBlanks = " \t";

bool IsKeyCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

// Cuts the first word off; a word ends at a blank or "=".
std::string_view TakeWord(std::string_view& rest)
{
    std::size_t length = 0;
    while (length < rest.size() && rest[length] != ' ' && rest[length] != '\t' && rest[length] != '=')
        ++length;
    const std::string_view word = rest.substr(0, length);
    rest.remove_prefix(length);
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    return word;
}

void Spoil(KivSettingLine& line, const char* reason)
{
    line.kind = KivSettingLine::Kind::Damaged;
    line.reason = reason;
}

} // namespace

bool KivIsSettingKey(std::string_view key)
{
    return !key.empty() && key.size() <= 255 && !(key[0] >= '0' && key[0] <= '9') &&
           std::all_of(key.begin(), key.end(), &IsKeyCharacter);
}

void KivParseSettingLine(std::string_view text, KivSettingLine& line)
{
    std::string_view rest = Trimmed(text);
    if (rest.empty() || rest[0] == '#') return;

    std::string_view word = TakeWord(rest);
    if (word == "lock") {
        line.lock = true;
        word = TakeWord(rest);
        if (rest.empty() && KivIsSettingKey(word)) {
            line.kind = KivSettingLine::Kind::Attribute;
            line.key = word;
            return;
        }
    }
    if (word == "initial") {
        line.initial = true;
        word = TakeWord(rest);
    }

    const std::string_view type = word;
    const std::string_view key = TakeWord(rest);
    if (!KivIsSettingKey(key)) return Spoil(line, "the line is no attribute");
    line.key = key;
    if (rest.empty() || rest[0] != '=') return Spoil(line, "there is no value");
    if (!KivIsSettingTypeWord(type)) {
        Spoil(line, "the type is unknown");
        // A newer version's type, not damage: but only a word can be one.
        if (KivIsSettingKey(type)) line.kind = KivSettingLine::Kind::Unknown;
        return;
    }
    if (const char* reason = KivParseSettingValue(type, Trimmed(rest.substr(1)), line.value)) {
        return Spoil(line, reason);
    }
    line.kind = KivSettingLine::Kind::Attribute;
}

void KivAppendSettingLine(std::string& text, const KivSettingChange& change)
{
    if (change.entry.lock) text += "lock ";
    if (KivHasValue(change.entry.value)) {
        if (change.entry.initial) text += "initial ";
        text += KivSettingTypeWord(change.entry.value);
        text += ' ';
    }
    text += change.key.View();
    if (KivHasValue(change.entry.value)) {
        text += " = ";
        KivAppendSettingText(text, change.entry.value);
    }
}

#include "Settings/KivSettingLine.h"

#include <algorithm>
#include <array>

namespace {

// By byte; a table, for every character of every key passes here at every start.
constexpr auto kKeyCharacters = [] {
    std::array<bool, 256> is{};
    for (std::size_t c = 'a'; c <= 'z'; ++c) is[c] = is[c - 'a' + 'A'] = true;
    for (std::size_t c = '0'; c <= '9'; ++c) is[c] = true;
    is['_'] = true;
    return is;
}();

bool IsKeyCharacter(char c)
{
    return kKeyCharacters[static_cast<unsigned char>(c)];
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

// Cuts the first word off, which ends at a blank or "="; empty when it holds other than key characters.
std::string_view TakeWord(std::string_view& rest)
{
    std::size_t length = 0;
    while (length < rest.size() && IsKeyCharacter(rest[length])) ++length;
    const std::string_view word = rest.substr(0, length);
    rest.remove_prefix(length);
    if (!rest.empty() && rest[0] != ' ' && rest[0] != '\t' && rest[0] != '=') return {};
    while (!rest.empty() && (rest[0] == ' ' || rest[0] == '\t')) rest.remove_prefix(1);
    return word;
}

// Whether a word of key characters is a key.
bool IsKeyWord(std::string_view word)
{
    return !word.empty() && word.size() <= 255 && !(word[0] >= '0' && word[0] <= '9');
}

// A pattern and nothing else.
bool IsPattern(std::string_view rest)
{
    if (rest.empty() || rest.back() != '*') return false;
    rest.remove_suffix(1);
    return rest.empty() || (IsKeyWord(rest) && std::all_of(rest.begin(), rest.end(), &IsKeyCharacter));
}

void Spoil(KivSettingLine& line, const char* reason)
{
    line.kind = KivSettingLine::Kind::Damaged;
    line.reason = reason;
}

} // namespace

bool KivIsSettingKey(std::string_view key)
{
    return IsKeyWord(key) && std::all_of(key.begin(), key.end(), &IsKeyCharacter);
}

bool KivIsSettingPattern(std::string_view pattern)
{
    return IsPattern(pattern);
}

void KivParseSettingLine(std::string_view text, KivSettingLine& line)
{
    std::string_view rest = Trimmed(text);
    if (rest.empty() || rest[0] == '#') return;

    std::string_view word = TakeWord(rest);
    if (word == "lock") {
        line.lock = true;
        if (IsPattern(rest)) {
            line.kind = KivSettingLine::Kind::Attribute;
            line.isPattern = true;
            line.key = rest;
            return;
        }
        word = TakeWord(rest);
        if (rest.empty() && IsKeyWord(word)) {
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
    if (!IsKeyWord(key)) return Spoil(line, "the line is no attribute");
    line.key = key;
    if (rest.empty() || rest[0] != '=') return Spoil(line, "there is no value");
    if (!KivIsSettingTypeWord(type)) {
        Spoil(line, "the type is unknown");
        // A newer version's type, not damage: but only a word can be one, and where it locks nobody guesses.
        if (IsKeyWord(type) && !line.lock) line.kind = KivSettingLine::Kind::Unknown;
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

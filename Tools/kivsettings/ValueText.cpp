#include "ValueText.h"

#include "Base/KivQuotedText.h"

#include <algorithm>
#include <charconv>

namespace {

bool NeedsQuotes(std::string_view text)
{
    return !KivIsUtf8(text) || (!text.empty() && text.front() == '"') ||
           std::any_of(text.begin(), text.end(), [](char c) { return (c >= 0 && c < 0x20) || c == 0x7f; });
}

std::string Number(double number)
{
    return std::string(KivShownSettingText(KivSettingValue(number)).View());
}

// The six digits of "#RRGGBB" or "0xRRGGBB" as a plain number, anything else as it is.
std::string PlainColor(std::string_view typed)
{
    std::string_view digits = typed;
    if (digits.starts_with('#'))
        digits.remove_prefix(1);
    else if (digits.starts_with("0x") || digits.starts_with("0X"))
        digits.remove_prefix(2);
    else
        return std::string(typed);
    unsigned int color = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), color, 16);
    const bool isColor = digits.size() == 6 && read.ptr == digits.data() + digits.size();
    return isColor ? std::to_string(color) : std::string(typed);
}

} // namespace

std::string ShownValue(const KivSettingValue& value)
{
    const KivUnicodeString shown = KivShownSettingText(value);
    if (!NeedsQuotes(shown.View())) return std::string(shown.View());
    std::string quoted;
    KivAppendQuoted(quoted, shown.View());
    return quoted;
}

std::string ReadTyped(std::string_view type, std::string_view typed, KivSettingValue& value)
{
    if (type == "string") {
        value = KivUnicodeString(typed);
        return {};
    }
    const char* const wrong = KivParseSettingValue(type, typed, value);
    return wrong ? wrong : "";
}

std::string ReadTyped(const KivDrwCatalogueEntry& entry, std::string_view typed, KivSettingValue& value)
{
    const KivSettingValue fallback = entry.makeDefault();
    const bool isColor = entry.kind.color == KivSettingKind::Color::Packed;
    KivSettingValue read;
    const std::string wrong =
        ReadTyped(KivSettingTypeWord(fallback), isColor ? PlainColor(typed) : std::string(typed), read);
    if (!wrong.empty()) return wrong + " (" + KivSettingTypeWord(fallback) + ")";
    const std::string outside = WrongWith(entry, read);
    if (outside.empty()) value = read;
    return outside;
}

std::string WrongWith(const KivDrwCatalogueEntry& entry, const KivSettingValue& value)
{
    const KivSettingValue fallback = entry.makeDefault();
    if (value.index() != fallback.index()) {
        return std::string("the value is of the type ") + KivSettingTypeWord(value) + " instead of " +
               KivSettingTypeWord(fallback);
    }
    const KivSettingKind& kind = entry.kind;
    if (kind.Holds(value)) return {};
    return "the value is out of range (" + std::string(kind.name) + ": " + Number(kind.minimum) + " to " +
           Number(kind.maximum) + ")";
}

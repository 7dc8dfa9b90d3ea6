#include "ValueText.h"

#include "Base/KivQuotedText.h"
#include "KivDrwValueKind.h"

#include <algorithm>
#include <charconv>
#include <type_traits>

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

KivSettingValue SettingValueOf(const KivDrwValue& value)
{
    return std::visit([](const auto& plain) { return KivSettingValue(plain); }, value);
}

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

std::string ReadTyped(const KivDrwRow& row, std::string_view typed, KivSettingValue& value)
{
    const KivSettingValue fallback = SettingValueOf(row.makeDefault());
    const bool isUnsigned = std::holds_alternative<unsigned int>(fallback);
    KivSettingValue read;
    const std::string wrong =
        ReadTyped(KivSettingTypeWord(fallback), isUnsigned ? PlainColor(typed) : std::string(typed), read);
    if (!wrong.empty()) return wrong + " (" + KivSettingTypeWord(fallback) + ")";
    const std::string outside = WrongWith(row, read);
    if (outside.empty()) value = read;
    return outside;
}

std::string WrongWith(const KivDrwRow& row, const KivSettingValue& value)
{
    const KivDrwValue fallback = row.makeDefault();
    if (value.index() != fallback.index() + 1) { // after "no value" both have the same types
        return std::string("the value is of the type ") + KivSettingTypeWord(value) + " instead of " +
               KivSettingTypeWord(SettingValueOf(fallback));
    }
    const KivDrwValueKind& kind = KivDrwCatalogue::KindOf(row);
    if (!kind.HasRange()) return {};
    const bool isInside = std::visit(
        [&kind](const auto& plain) {
            if constexpr (std::is_same_v<std::decay_t<decltype(plain)>, std::monostate>)
                return true;
            else
                return kind.Holds(plain);
        },
        value);
    return isInside ? ""
                    : "the value is out of range (" + std::string(kind.name) + ": " + Number(kind.minimum) +
                          " to " + Number(kind.maximum) + ")";
}

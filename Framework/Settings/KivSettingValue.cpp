#include "Settings/KivSettingValue.h"

#include "Base/KivQuotedText.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace {

template <class T> constexpr bool kIsNumber = std::is_arithmetic_v<T>;

template <class T> void AppendNumber(std::string& text, T number)
{
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, number);
    text.append(digits, end.ptr);
}

template <class T> const char* ParseNumber(std::string_view text, KivSettingValue& value)
{
    T number{};
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec == std::errc::result_out_of_range) return "the number does not fit its type";
    if (read.ec != std::errc{} || read.ptr != end) return "the value is no number of its type";
    if constexpr (std::is_floating_point_v<T>) {
        if (!std::isfinite(number)) return "the number is not finite";
    }
    value = number;
    return nullptr;
}

const char* ParseString(std::string_view text, KivSettingValue& value)
{
    std::string plain;
    if (!KivUnquote(text, plain)) return "the text is not quoted correctly";
    value = KivUnicodeString(std::move(plain));
    return nullptr;
}

// In the order of the variant.
struct TypeNames {
    const char* name;
    std::string_view word;
    const char* (*parse)(std::string_view, KivSettingValue&);
};
constexpr TypeNames kTypes[] = {
    {"", "", nullptr},
    {"int", "int", &ParseNumber<int>},
    {"unsigned int", "unsigned", &ParseNumber<unsigned int>},
    {"float", "float", &ParseNumber<float>},
    {"double", "double", &ParseNumber<double>},
    {"string", "string", &ParseString},
};

const TypeNames* TypeOf(std::string_view word)
{
    for (const TypeNames& type : kTypes) {
        if (type.parse && type.word == word) return &type;
    }
    return nullptr;
}

} // namespace

bool KivSameValue(const KivSettingValue& left, const KivSettingValue& right)
{
    if (left.index() != right.index()) return false;
    return std::visit(
        [&](const auto& value) {
            using T = std::decay_t<decltype(value)>;
            const T& other = std::get<T>(right);
            if constexpr (kIsNumber<T>)
                return std::memcmp(&value, &other, sizeof(T)) == 0;
            else
                return value == other;
        },
        left);
}

bool KivIsSound(const KivSettingValue& value)
{
    if (const auto* number = std::get_if<float>(&value)) return std::isfinite(*number);
    if (const auto* number = std::get_if<double>(&value)) return std::isfinite(*number);
    return true;
}

const char* KivSettingTypeName(const KivSettingValue& value)
{
    return kTypes[value.index()].name;
}

const char* KivSettingTypeWord(const KivSettingValue& value)
{
    return kTypes[value.index()].word.data();
}

void KivAppendSettingText(std::string& text, const KivSettingValue& value)
{
    std::visit(
        [&](const auto& plain) {
            using T = std::decay_t<decltype(plain)>;
            if constexpr (kIsNumber<T>)
                AppendNumber(text, plain);
            else if constexpr (std::is_same_v<T, KivUnicodeString>)
                KivAppendQuoted(text, plain.View());
        },
        value);
}

KivUnicodeString KivShownSettingText(const KivSettingValue& value)
{
    if (const auto* text = std::get_if<KivUnicodeString>(&value)) return *text;
    std::string text;
    KivAppendSettingText(text, value);
    return KivUnicodeString(std::move(text));
}

const char* KivParseSettingValue(std::string_view typeWord, std::string_view text, KivSettingValue& value)
{
    const TypeNames* type = TypeOf(typeWord);
    return type ? type->parse(text, value) : "the type is unknown";
}

bool KivIsSettingTypeWord(std::string_view word)
{
    return TypeOf(word) != nullptr;
}

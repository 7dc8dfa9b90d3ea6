#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <utility>

// What the framework's two string classes have in common: a value of bytes that ends in a zero, ordered
// byte by byte. A null pointer reads as the empty string.
template <class Self> class KivBasicString {
public:
    KivBasicString() = default;
    KivBasicString(const char* text) : _text(text ? text : "") {}
    explicit KivBasicString(std::string_view text) : _text(text) {}
    explicit KivBasicString(std::string text) : _text(std::move(text)) {}

    // The bytes, valid until the string is changed or destroyed.
    const char* ConvertToChar() const { return _text.c_str(); }
    std::string_view View() const { return _text; }
    int GetLengthInByte() const { return static_cast<int>(_text.size()); }
    bool IsEmpty() const { return _text.empty(); }

    Self& Append(std::string_view tail)
    {
        _text.append(tail);
        return static_cast<Self&>(*this);
    }
    Self& Append(const char* tail) { return Append(std::string_view(tail ? tail : "")); }
    Self& Append(const Self& tail) { return Append(tail.View()); }

    friend Self operator+(const Self& left, const Self& right)
    {
        Self sum(left);
        sum.Append(right.View());
        return sum;
    }
    friend Self operator+(const Self& left, const char* right) { return left + Self(right); }
    friend Self operator+(const char* left, const Self& right) { return Self(left) + right; }

    friend bool operator==(const Self& left, const Self& right) { return left._text == right._text; }
    friend bool operator==(const Self& left, const char* right) { return left._text == (right ? right : ""); }
    friend std::strong_ordering operator<=>(const Self& left, const Self& right)
    {
        return left._text <=> right._text;
    }

protected:
    std::string _text;
};

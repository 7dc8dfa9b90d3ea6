#pragma once

#include "Settings/KivSettingValue.h"

#include <string>
#include <string_view>
#include <utility>

// One JSON object on one line, member by member. Bytes that are no UTF-8 become the replacement character.
class JsonObject {
public:
    JsonObject& Add(std::string_view name, std::string_view text);
    JsonObject& Add(std::string_view name, const char* text) { return Add(name, std::string_view(text)); }
    JsonObject& Add(std::string_view name, bool truth) { return AddPlain(name, truth ? "true" : "false"); }
    JsonObject& Add(std::string_view name, int number) { return AddPlain(name, std::to_string(number)); }
    // A number, a text, or null for no value.
    JsonObject& Add(std::string_view name, const KivSettingValue& value);
    // Null when the text is empty.
    JsonObject& AddUnlessEmpty(std::string_view name, std::string_view text);

    std::string Text() const { return "{" + _members + "}"; }

private:
    JsonObject& AddPlain(std::string_view name, std::string_view json);

    std::string _members;
};

// The elements of a JSON array, one a line: what to print before, between and after them.
class JsonArray {
public:
    std::string Element(const JsonObject& object)
    {
        return (std::exchange(_isFirst, false) ? "[\n" : ",\n") + object.Text();
    }
    std::string End() const { return _isFirst ? "[]\n" : "\n]\n"; }

private:
    bool _isFirst = true;
};

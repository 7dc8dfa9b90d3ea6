#pragma once

#include "Json.h"
#include "Settings/KivSettingEntry.h"

#include <string>
#include <vector>

// What is said of one key before and after; an empty entry: nothing.
struct Change {
    std::string key;
    KivSettingEntry before, after;
};

// The line of a settings file that says this, without its end.
std::string LineOf(const std::string& key, const KivSettingEntry& entry);

// Changes as a person or a program reads them: "-" and "+" lines, or JSON.
class ChangeLines {
public:
    explicit ChangeLines(bool isJson) : _isJson(isJson) {}

    // What is compared with what; stands above the first change.
    void Head(const std::string& before, const std::string& after);
    // Those that say the same before and after are passed over.
    void Add(const std::vector<Change>& changes);

    std::string Text() const { return _isJson ? _text + _array.End() : _text; }
    int Count() const { return _count; }

private:
    bool _isJson;
    std::string _head, _text;
    JsonArray _array;
    int _count = 0;
};

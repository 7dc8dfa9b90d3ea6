#include "ChangeLines.h"

#include "Settings/KivSettingLine.h"

std::string LineOf(const std::string& key, const KivSettingEntry& entry)
{
    std::string line;
    KivAppendSettingLine(line, {KivString(key.c_str()), entry});
    return line;
}

void ChangeLines::Head(const std::string& before, const std::string& after)
{
    _head = "--- " + before + "\n+++ " + after + "\n";
}

void ChangeLines::Add(const std::vector<Change>& changes)
{
    for (const auto& [key, before, after] : changes) {
        if (before.lock == after.lock && KivSameValue(before.value, after.value)) continue;
        if (_isJson) {
            JsonObject object;
            object.Add("key", key).Add("before", before.value).Add("after", after.value);
            _text += _array.Element(object.Add("lockedBefore", before.lock).Add("lockedAfter", after.lock));
        } else {
            if (_count == 0) _text += _head;
            if (!before.IsEmpty()) _text += "-" + LineOf(key, before) + "\n";
            if (!after.IsEmpty()) _text += "+" + LineOf(key, after) + "\n";
        }
        ++_count;
    }
}

#pragma once

#include "Base/KivString.h"
#include "Settings/KivSettingValue.h"

// What one layer says about one key.
struct KivSettingEntry {
    KivSettingValue value;
    bool initial = false; // written by the first start, not by the user
    bool lock = false;
    int line = 0;     // of the value in the layer's file; 0 when it does not stand there yet
    int lockLine = 0; // of the lock

    bool IsEmpty() const { return !lock && !KivHasValue(value); }

    // The same statement, wherever it stands.
    bool Equals(const KivSettingEntry& other) const { return lock == other.lock && HasValueOf(other); }
    bool HasValueOf(const KivSettingEntry& other) const
    {
        return initial == other.initial && KivSameValue(value, other.value);
    }
};

// A key and what is to stand in a file about it; an empty entry: nothing.
struct KivSettingChange {
    KivString key;
    KivSettingEntry entry;
};

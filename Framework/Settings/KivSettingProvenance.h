#pragma once

#include "Settings/KivSettingInfo.h"

// What KivSettingInfo says of one setting's place, as the repository holds it: nothing is copied, so that
// asking is as cheap as reading. The texts belong to the repository and hold until it next refreshes or
// saves.
struct KivSettingProvenance {
    KivSettingInfo::Origin origin = KivSettingInfo::Origin::None;
    bool initial = false;
    const KivUnicodeString* layer = nullptr; // null when there is no value
    const KivUnicodeString* file = nullptr;
    int line = 0;

    bool locked = false;
    bool lockedHere = false;
    bool canLock = false;
    const KivUnicodeString* lockLayer = nullptr; // null when it is not locked
    const KivUnicodeString* lockFile = nullptr;
    int lockLine = 0;
    const KivUnicodeString* lockReason = nullptr; // null unless that layer is closed

    // Copies it into a record, whose value and names stay as they are.
    void Fill(KivSettingInfo& info) const;
};

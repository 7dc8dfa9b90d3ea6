#pragma once

#include "Base/KivString.h"
#include "Base/KivUnicodeString.h"

#include <vector>

// What is known of one setting's place: who gave its value, and who locks it. A value that can be copied; it
// shows the moment at which KivSettingRepository::GetInfo filled it. A new one is empty: unlocked, no value.
struct KivSettingInfo {
    enum class Origin { None, User, Administrator };

    KivString repository; // name of the repository, or empty in an empty record
    KivString key;

    Origin origin = Origin::None; // who gave the value that is shown; None: only the reader's default is left
    bool initial = false;         // the user's value was written by the first start, not by the user
    KivUnicodeString value;       // the value as text, empty when there is none
    KivUnicodeString layer;       // name of the layer that gave the value, or empty
    KivUnicodeString file;        // its file
    int line = 0;                 // its line there, or 0 when it has not been saved yet

    bool locked = false;     // an administrator layer fixes the setting
    bool lockedHere = false; // the layer being edited locks it for those inside; whoever edits may change it
    bool canLock = false;    // whoever asks edits a layer, and may lock or unlock this key there
    KivUnicodeString lockLayer; // name of the outermost layer that locks it
    KivUnicodeString lockFile;  // its file
    int lockLine = 0;           // its line there; that of a lock on a prefix, when this is one

    // Further keys that an administrator locks and unlocks along with this one; whoever shows several as one
    // fills it.
    std::vector<KivString> companions;

    // One or two plain sentences for the padlock: whether and by whom the setting is locked, which value is
    // enforced, where that is written. The same words wherever a person asks.
    KivUnicodeString Words() const;
};

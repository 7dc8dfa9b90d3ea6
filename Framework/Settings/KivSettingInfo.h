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
    bool setHere = false;         // the layer being edited gives the value
    KivUnicodeString value;       // the value as text, empty when there is none
    KivString type;               // the type that it is stored in, or empty
    KivUnicodeString layer;       // name of the layer that gave the value, or empty
    KivUnicodeString file;        // its file
    int line = 0;                 // its line there, or 0 when it has not been saved yet

    bool locked = false;     // an administrator layer fixes the setting
    bool lockedHere = false; // the layer being edited locks it for those inside; whoever edits may change it
    bool canLock = false;    // whoever asks edits a layer, and may lock or unlock this key there
    KivUnicodeString lockLayer; // name of the outermost layer that locks it
    KivUnicodeString lockFile;  // its file
    int lockLine = 0;           // its line there; that of a lock on a prefix, when this is one
    // Why that layer, which cannot be read, is closed as a whole until it can be: a clause. Empty for a lock
    // that somebody wrote.
    KivUnicodeString lockReason;

    // The other parts of what is shown as one, such as the green and the blue of a color whose record this
    // is: an administrator locks and unlocks them along with this one. Whoever shows several as one fills
    // them, and in each, this one included, the key of the framework text that names the part.
    std::vector<KivSettingInfo> companions;
    KivString part;

    // Locked for whoever asks, or for those inside the layer that is edited.
    bool IsClosed() const { return locked || lockedHere; }
    // Some of the parts are closed and some are not.
    bool IsPartlyClosed() const;

    // For a reader that takes another type than the stored one, and so keeps its default: nobody gave the
    // value that it shows. Does nothing when the type is that one.
    void ReadAs(const char* readerType);

    // Plain sentences for the padlock, in the user's language: whether and by whom the setting is locked,
    // which value is enforced, where that is written. Parts that are not locked alike have a line each.
    KivUnicodeString Message() const;
    // The same with the value as the row of a page shows it; one that is empty is not spoken of.
    KivUnicodeString Message(const KivUnicodeString& shown) const;

private:
    std::vector<const KivSettingInfo*> Parts() const;
    bool IsLockedAsOne() const;
    KivUnicodeString MessageOfParts() const;
    KivUnicodeString MessageOfLock(const KivUnicodeString& shown) const;
};

// What KivSettingInfo says of one setting's place, as the repository holds it: nothing is copied, so that
// asking is as cheap as reading. The texts belong to the repository and hold until it next refreshes or
// saves.
struct KivSettingProvenance {
    KivSettingInfo::Origin origin = KivSettingInfo::Origin::None;
    bool initial = false;
    bool setHere = false;
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

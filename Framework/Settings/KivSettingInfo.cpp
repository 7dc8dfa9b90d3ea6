#include "Settings/KivSettingInfo.h"

#include "Base/KivTextCatalogue.h"

#include <algorithm>
#include <string>

namespace {

constexpr auto Text = &KivTextCatalogue::FrameworkText;

// layer "site" (/etc/kiv/site/A.kivsettings, line 12)
KivUnicodeString Place(const KivUnicodeString& layer, const KivUnicodeString& file, int line)
{
    if (line > 0) return Text("SettingPlaceLine", {layer, file, KivUnicodeString(std::to_string(line))});
    return Text("SettingPlace", {layer, file});
}

} // namespace

bool KivSettingInfo::IsPartlyClosed() const
{
    return std::any_of(companions.begin(), companions.end(),
                       [this](const KivSettingInfo& other) { return other.IsClosed() != IsClosed(); });
}

void KivSettingInfo::ReadAs(const char* readerType)
{
    if (origin == Origin::None || type == readerType) return;
    origin = Origin::None;
    initial = setHere = false;
    value = layer = file = {};
    type = {};
    line = 0;
}

std::vector<const KivSettingInfo*> KivSettingInfo::Parts() const
{
    std::vector<const KivSettingInfo*> parts{this};
    for (const KivSettingInfo& companion : companions) parts.push_back(&companion);
    return parts;
}

bool KivSettingInfo::IsLockedAsOne() const
{
    return std::all_of(companions.begin(), companions.end(), [this](const KivSettingInfo& other) {
        return other.locked == locked && other.lockedHere == lockedHere && other.lockFile == lockFile;
    });
}

KivUnicodeString KivSettingInfo::Message() const
{
    if (origin == Origin::None) return Message(Text("SettingDefaultValue", {}));
    return Message(value.IsEmpty() ? Text("SettingEmptyText", {}) : value);
}

KivUnicodeString KivSettingInfo::Message(const KivUnicodeString& shown) const
{
    if (!IsLockedAsOne()) return MessageOfParts();
    if (IsClosed()) return MessageOfLock(shown);
    switch (origin) {
    case Origin::None:
        return Text("SettingNotSet", {});
    case Origin::User:
        return Text(initial ? "SettingInitial" : "SettingByUser", {});
    case Origin::Administrator:
        break;
    }
    if (setHere) return Text("SettingHere", {});
    return Text("SettingByAdministrator", {Place(layer, file, line)});
}

KivUnicodeString KivSettingInfo::MessageOfParts() const
{
    KivUnicodeString message;
    for (const KivSettingInfo* one : Parts()) {
        if (!one->IsClosed()) continue;
        if (!message.IsEmpty()) message.Append("\n");
        const char* const text = !one->lockReason.IsEmpty() ? "SettingPartClosed"
                                 : one->locked              ? "SettingPartLocked"
                                                            : "SettingPartLockedHere";
        message.Append(Text(text, {Text(one->part.ConvertToChar(), {}), one->value,
                                   Place(one->lockLayer, one->lockFile, one->lockLine), one->lockReason}));
    }
    return message;
}

KivUnicodeString KivSettingInfo::MessageOfLock(const KivUnicodeString& shown) const
{
    const KivUnicodeString locker = Place(lockLayer, lockFile, lockLine);
    if (!lockReason.IsEmpty()) {
        return shown.IsEmpty() ? Text("SettingClosed", {locker, lockReason})
                               : Text("SettingClosedAt", {locker, lockReason, shown});
    }
    if (shown.IsEmpty()) return Text(locked ? "SettingLocked" : "SettingLockedHere", {locker});
    if (!locked) return Text("SettingLockedHereAt", {locker, shown});
    if (origin == Origin::None || file == lockFile) return Text("SettingLockedAt", {locker, shown});
    return Text("SettingLockedAtFrom", {locker, shown, Place(layer, file, line)});
}

void KivSettingProvenance::Fill(KivSettingInfo& info) const
{
    info.origin = origin;
    info.initial = initial;
    info.setHere = setHere;
    if (layer) info.layer = *layer;
    if (file) info.file = *file;
    info.line = line;
    info.locked = locked;
    info.lockedHere = lockedHere;
    info.canLock = canLock;
    if (lockLayer) info.lockLayer = *lockLayer;
    if (lockFile) info.lockFile = *lockFile;
    info.lockLine = lockLine;
    if (lockReason) info.lockReason = *lockReason;
}

#include "Settings/KivSettingInfo.h"

namespace {

// in layer "site" (/etc/kiv/site/A.kivsettings, line 12)
KivUnicodeString Place(const KivUnicodeString& layer, const KivUnicodeString& file, int line)
{
    KivUnicodeString place("in layer \"");
    place.Append(layer).Append("\" (").Append(file);
    if (line > 0) place.Append(", line " + std::to_string(line));
    return place.Append(")");
}

} // namespace

KivUnicodeString KivSettingInfo::Words() const
{
    const bool isSet = origin != Origin::None;
    const KivUnicodeString shown = value.IsEmpty() ? KivUnicodeString("an empty text") : value;
    KivUnicodeString words;
    if (locked) {
        words.Append("Locked by the administrator at ").Append(isSet ? shown : "the default").Append(" ");
        words.Append(Place(lockLayer, lockFile, lockLine)).Append(".");
        if (isSet && file != lockFile)
            words.Append(" The value is set ").Append(Place(layer, file, line)).Append(".");
        return words;
    }
    if (lockedHere) {
        words.Append("Locked at ")
            .Append(isSet ? shown : "the default")
            .Append(" for the users of this layer ");
        return words.Append(Place(lockLayer, lockFile, lockLine)).Append(".");
    }
    if (origin == Origin::User) return initial ? "As it was at the first start." : "Set by you.";
    if (!isSet) return "Not set: the default applies.";
    words.Append("Set by the administrator ").Append(Place(layer, file, line));
    return words.Append("; you may change it.");
}

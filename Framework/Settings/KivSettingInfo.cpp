#include "Settings/KivSettingInfo.h"

KivUnicodeString KivSettingInfo::Words() const
{
    if (locked) return "Locked by the administrator in layer \"" + lockLayer + "\" (" + lockFile + ").";
    return origin == Origin::None ? "Not set: the default applies." : "Set to " + value + ".";
}

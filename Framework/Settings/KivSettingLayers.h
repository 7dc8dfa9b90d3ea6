#pragma once

#include "Base/KivUnicodeString.h"

#include <string_view>
#include <vector>

// Which directories hold settings on this machine. All paths are absolute and end without a slash.
class KivSettingLayers {
public:
    // The administrator's, outermost first: those that the system's file names, one a line ("#" starts a
    // comment), else those of KivAdminSettingsPath, separated by colons.
    static std::vector<KivUnicodeString> Administrator();

    // Of those, what binds the layer in that directory: those outside of it; a directory that is none of them
    // stands alone. All of them for an empty one, which is the user's.
    static std::vector<KivUnicodeString> Outside(const KivUnicodeString& edited);

    // The file of a repository in a layer's directory; its name alone for an empty one.
    static KivUnicodeString FileIn(const KivUnicodeString& directory, std::string_view repository);

    // The system's file names them, so that a user cannot choose other ones.
    static bool AreEnforced();

    // The user's directory: KivUserSettingsPath, else kiv in the XDG configuration directory. Empty when
    // there is no home directory.
    static KivUnicodeString User();

    // Where this machine keeps its copies of administrator layers; empty when there is no home directory.
    static KivUnicodeString Cache();

    // What a person calls a layer: the last part of its directory's path.
    static KivUnicodeString NameOf(const KivUnicodeString& directory);

    // Absolute, without "." and "..", without a slash at the end.
    static KivUnicodeString Absolute(std::string_view path);

    // For tests and for tools that are told to examine another machine's file, instead of /etc/kiv/layers.
    // Not an environment variable: a user could set that. Answers the path before.
    static KivUnicodeString SetSystemFile(const KivUnicodeString& path);
};

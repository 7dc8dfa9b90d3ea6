#pragma once

#include "Base/KivUnicodeString.h"

#include <string_view>

// Where settings stand on this machine. All paths are absolute and end without a slash.
class KivSettingLayers {
public:
    // The file of a repository in a layer's directory; its name alone for an empty one.
    static KivUnicodeString FileIn(const KivUnicodeString& directory, std::string_view repository);

    // The user's directory: KivUserSettingsPath, else kiv in the XDG configuration directory. Empty when
    // there is no home directory.
    static KivUnicodeString User();

    // Where this machine keeps its copies of administrator files: below the home directory of the account,
    // or for root in /var/cache, whatever the environment says; of files that the environment names below
    // the XDG cache directory. Empty when there is no home directory.
    static KivUnicodeString Cache(bool isEnforced);

    // What a person calls a layer: the last part of its directory's path.
    static KivUnicodeString NameOf(const KivUnicodeString& directory);

    // Absolute, without "." and "..", without a slash at the end.
    static KivUnicodeString Absolute(std::string_view path);

    // The file that lists the administrator's layers.
    static KivUnicodeString SystemFile();
    // It is this machine's.
    static bool IsUsualSystemFile();

    // For tests and for tools that are told to examine another machine's file, instead of /etc/kiv/layers;
    // empty: there is no list. Copies of what it names follow the environment. Not an environment variable:
    // a user could set that. Answers the path before.
    static KivUnicodeString SetSystemFile(const KivUnicodeString& path);
};

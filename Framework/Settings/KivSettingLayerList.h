#pragma once

#include "Settings/KivSettingLayerListFile.h"

// The administrator's layers that are in force on this machine, outermost first: those that the system's list
// names, else those of KivAdminSettingsPath, separated by colons.
class KivSettingLayerList {
public:
    // Reads the list, in at most a second. One that cannot be read or believed is replaced by what this
    // process, else this machine, knows of its last complete state. Used from the user-interface thread.
    static KivSettingLayerList Read();

    // Ends the system's list with a seal, as it stands: whoever does takes the responsibility for it. Why it
    // was not done, a clause without a full stop; empty when the list has one now that fits.
    static KivUnicodeString Seal();

    const std::vector<KivSettingListedLayer>& Layers() const { return _layers; }
    std::vector<KivUnicodeString> Directories() const;

    // The system's list names them, or says that there are none, so that a user cannot choose other ones.
    bool IsEnforced() const { return _isEnforced; }

    // Why nothing at all is known of a list that is there: every setting is closed until it can be read.
    // Empty otherwise.
    const KivUnicodeString& Closed() const { return _closed; }

    // What of it binds the layer in that directory: those outside of it; a directory that is none of them
    // stands alone. All of it for an empty one, which is the user's.
    KivSettingLayerList Outside(const KivUnicodeString& edited) &&;

private:
    std::vector<KivSettingListedLayer> _layers;
    bool _isEnforced = false;
    KivUnicodeString _closed;
};

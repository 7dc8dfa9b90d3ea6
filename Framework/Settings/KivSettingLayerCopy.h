#pragma once

#include "Base/KivUnicodeString.h"

#include <string>
#include <string_view>

// The last complete state of one administrator file, as far as it is known: to this process, else to this
// machine by a copy with a checksum. A copy that does not agree with its checksum counts as none. Used from
// the user-interface thread.
class KivSettingLayerCopy {
public:
    // isEnforced: the system names the file. Then the copy's place does not depend on the environment.
    KivSettingLayerCopy(const KivUnicodeString& original, bool isEnforced);

    // False when nothing is known. Nothing but an empty text: the file was not there, and there is no copy.
    bool Read(std::string& text) const;

    // The same for a file that is not believed, and says so, with the doubt, a clause without a full stop,
    // and what happens when nothing is known.
    bool StandIn(const KivUnicodeString& doubt, const char* otherwise, std::string& text) const;

    // Takes a state as the last complete one. An empty text is known to this process alone.
    void Keep(std::string_view text) const;

    // For tests: what this process knows.
    static void ForgetAll();

private:
    KivUnicodeString Path() const;
    std::string Header(std::string_view text) const;
    bool ReadFromDisk(std::string& text) const;
    bool KeepOnDisk(std::string_view text) const;

    KivUnicodeString _original;
    bool _isEnforced;
};

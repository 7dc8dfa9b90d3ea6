#pragma once

#include "Base/KivUnicodeString.h"

#include <string>
#include <string_view>

// This machine's copy of the last complete state of one administrator file, with a checksum. A copy that does
// not agree with its checksum counts as none.
class KivSettingLayerCopy {
public:
    explicit KivSettingLayerCopy(const KivUnicodeString& original);

    bool Read(std::string& text) const;

    // Replaces the copy, unless it is the same already.
    void Keep(std::string_view text) const;

    // The original was withdrawn.
    void Drop() const;

private:
    std::string Header(std::string_view text) const;

    KivUnicodeString _original;
    KivUnicodeString _path; // empty when there is no place for copies
};

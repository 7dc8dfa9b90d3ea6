#pragma once

#include "Settings/KivSettingFile.h"

#include <optional>
#include <vector>

// One administrator layer as it is in force for one repository.
struct KivSettingLayer {
    KivUnicodeString name;
    KivUnicodeString path; // of its file, whether that is there or not
    KivSettingFile file;
    std::optional<KivSettingFile> replaced; // what is on disk, where a copy is in force instead
};

// Reads the layers of these directories, outermost first, in at most a second. A layer that is away, slow,
// half written or damaged is replaced by this machine's copy of its last complete state; without a copy what
// is intact of it is in force.
std::vector<KivSettingLayer> KivReadAdministratorLayers(const std::vector<KivUnicodeString>& directories,
                                                        std::string_view fileName);

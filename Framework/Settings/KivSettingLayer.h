#pragma once

#include "Settings/KivSettingFile.h"
#include "Settings/KivSettingLayerList.h"

#include <optional>
#include <vector>

// One administrator layer as it is in force for one repository.
struct KivSettingLayer {
    KivUnicodeString name;
    KivUnicodeString path; // of its file, whether that is there or not
    KivSettingFile file;
    std::optional<KivSettingFile> replaced; // what is on disk, where something else is in force instead
    // Why nothing is known of it: it locks every key, at what the layers outside of it give. Empty otherwise.
    KivUnicodeString closed;
};

// Reads the layers of the list, outermost first, in at most a second. One that is away, slow, half written or
// damaged is replaced by what this process, else this machine, knows of its last complete state. Where
// nothing is known an optional layer says nothing, and any other is closed; of a list of which nothing is
// known the list itself stands as a closed layer.
std::vector<KivSettingLayer> KivReadAdministratorLayers(const KivSettingLayerList& list,
                                                        std::string_view fileName);

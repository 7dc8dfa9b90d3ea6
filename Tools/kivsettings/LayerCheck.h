#pragma once

#include "Settings/KivSettingFindings.h"

#include <vector>

// What an examination of every layer's file found.
struct LayerCheck {
    std::vector<KivSettingFinding> findings; // outermost layer first, line by line
    bool isUnreadable = false;               // some file is there, but could not be read
    int files = 0;                           // that were read
};

// Examines the administrator's layers and the user's file, else the edited layer and those outside of it:
// what the framework finds wrong or without effect, and values that do not fit the catalogue.
LayerCheck CheckLayers(const KivUnicodeString& editedLayer);

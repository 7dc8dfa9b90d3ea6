#pragma once

#include "Settings/KivSettingLayer.h"
#include "Settings/KivSettingProvenance.h"

#include <vector>

struct KivSettingAttribute;

// Where what a repository holds may stand: in the layers outside, or in the file that it writes.
struct KivSettingPlaces {
    KivUnicodeString ownName; // what a person calls the layer that is written
    KivUnicodeString ownPath;
    std::vector<KivSettingLayer> layers; // outermost first

    // Their files, whether they are there or not, outermost first; the own one last, if there is a place for
    // it.
    std::vector<KivUnicodeString> Files() const;

    // Where the value and the lock of an attribute of the repository stand, as a user sees it: who writes a
    // layer is its administrator.
    void Trace(const KivSettingAttribute& attribute, KivSettingProvenance& place) const;
};

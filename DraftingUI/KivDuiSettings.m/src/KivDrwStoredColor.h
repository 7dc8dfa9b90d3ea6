#pragma once

#include "KivDrwSettingAccess.h"

// Colors as settings store them, each with what KIV_BIND_COLOR asks of it. Components outside 0 to 255 are
// not written.

// Three integer keys from 0 to 255.
struct KivDrwComponentColor {
    const KivDrwKey<int>& red;
    const KivDrwKey<int>& green;
    const KivDrwKey<int>& blue;

    constexpr KivDrwComponentColor(const KivDrwKey<int>& r, const KivDrwKey<int>& g, const KivDrwKey<int>& b)
        : red(r), green(g), blue(b)
    {}

    void Read(const KivSettingRepository* repository, int& r, int& g, int& b) const;
    void Write(KivSettingRepository* repository, int r, int g, int b) const;
    // The lock is that of the red key, as with the background colors.
    void GetInfo(const KivSettingRepository* repository, KivSettingInfo& info) const;
};

// One key that holds 0xRRGGBB.
struct KivDrwPackedColor {
    const KivDrwKey<unsigned int>& key;

    void Read(const KivSettingRepository* repository, int& r, int& g, int& b) const;
    void Write(KivSettingRepository* repository, int r, int g, int b) const;
    void GetInfo(const KivSettingRepository* repository, KivSettingInfo& info) const;
};

// Whether these are components of a color.
bool KivDrwIsColor(int r, int g, int b);

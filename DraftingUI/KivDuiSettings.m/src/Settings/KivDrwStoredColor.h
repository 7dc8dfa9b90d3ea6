#pragma once

#include "KivDrwSettingAccess.h"

#include <string>

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
    // That of the red key, as with the background colors, and the two others as its companions.
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

// The lock record of a color of three keys: that of the red one with the two others as its companions, each
// with its component as the color shows it.
template <class Color>
void KivDrwGetColorInfo(const Color& color, const KivSettingRepository* repository, KivSettingInfo& info)
{
    int r = 0, g = 0, b = 0;
    color.Read(repository, r, g, b);
    const auto part = [&](const auto& key, int component, const char* name, KivSettingInfo& record) {
        KivDrwGetInfo(repository, key, record);
        record.key = key.name;
        record.value = KivUnicodeString(std::to_string(component));
        record.part = name;
    };
    part(color.red, r, "PartRed", info);
    info.companions.resize(2);
    part(color.green, g, "PartGreen", info.companions[0]);
    part(color.blue, b, "PartBlue", info.companions[1]);
}

// The two background colors, whose components are stored as floats from 0.0 to 1.0.
struct KivDrwBackgroundColor {
    const KivDrwKey<float>& red;
    const KivDrwKey<float>& green;
    const KivDrwKey<float>& blue;

    // The components from 0 to 255. Deliberately each is cut to a whole number before it is scaled: 1.0 reads
    // as 255 and everything below as 0.
    void Read(const KivSettingRepository* repository, int& r, int& g, int& b) const;
    // Stores each component divided by 255, so that only 255 reads back as itself. Nothing without a
    // repository.
    void Write(KivSettingRepository* repository, int r, int g, int b) const;
    // Deliberately the lock is that of the red key alone; whoever locks or unlocks it takes the others along,
    // and is told of theirs.
    void GetInfo(const KivSettingRepository* repository, KivSettingInfo& info) const;
};

inline constexpr KivDrwBackgroundColor kKivDrwSheetColor{
    KivDrwKeys::BackgroundColorRed, KivDrwKeys::BackgroundColorGreen, KivDrwKeys::BackgroundColorBlue};
inline constexpr KivDrwBackgroundColor kKivDrwDetailColor{KivDrwKeys::BackgroundColorRedDitto,
                                                          KivDrwKeys::BackgroundColorGreenDitto,
                                                          KivDrwKeys::BackgroundColorBlueDitto};

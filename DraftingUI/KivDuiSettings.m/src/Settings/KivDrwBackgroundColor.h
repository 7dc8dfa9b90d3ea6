#pragma once

#include "KivDrwSettingAccess.h"

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

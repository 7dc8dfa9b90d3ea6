#include "Settings/KivDrwBackgroundColor.h"

#include "Settings/KivDrwPageWrite.h"
#include "Settings/KivDrwStoredColor.h"

#include <limits>

namespace {

int Scaled(float component)
{
    // A float that no int holds counts as the greatest one; the product wraps as 32 bits do.
    constexpr double kBeyond = 2147483648.0;
    const double exact = static_cast<double>(component);
    const bool inRange = exact > -kBeyond - 1.0 && exact < kBeyond;
    const int whole = inRange ? static_cast<int>(exact) : std::numeric_limits<int>::max();
    return static_cast<int>(static_cast<unsigned int>(whole) * 255U);
}

float Stored(int component)
{
    return static_cast<float>(component / 255.0);
}

} // namespace

void KivDrwBackgroundColor::Read(const KivSettingRepository* repository, int& r, int& g, int& b) const
{
    r = Scaled(KivDrwRead(repository, red));
    g = Scaled(KivDrwRead(repository, green));
    b = Scaled(KivDrwRead(repository, blue));
}

void KivDrwBackgroundColor::Write(KivSettingRepository* repository, int r, int g, int b) const
{
    KivDrwChooseTogether<float>(repository, {{red, Stored(r)}, {green, Stored(g)}, {blue, Stored(b)}});
}

void KivDrwBackgroundColor::GetInfo(const KivSettingRepository* repository, KivSettingInfo& info) const
{
    KivDrwGetColorInfo(*this, repository, info);
}

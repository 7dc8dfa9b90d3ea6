#include "Settings/KivDrwStoredColor.h"

#include "Kiv2DBaseSketcherSettingsAdapt.h"
#include "Settings/KivDrwPageWrite.h"

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

void KivDrwComponentColor::Read(const KivSettingRepository* repository, int& r, int& g, int& b) const
{
    r = KivDrwRead(repository, red);
    g = KivDrwRead(repository, green);
    b = KivDrwRead(repository, blue);
}

void KivDrwComponentColor::Write(KivSettingRepository* repository, int r, int g, int b) const
{
    if (!KivDrwIsColor(r, g, b)) return;
    KivDrwChooseTogether<int>(repository, {{red, r}, {green, g}, {blue, b}});
}

void KivDrwComponentColor::GetInfo(const KivSettingRepository* repository, KivSettingInfo& info) const
{
    KivDrwGetColorInfo(*this, repository, info);
}

void KivDrwPackedColor::Read(const KivSettingRepository* repository, int& r, int& g, int& b) const
{
    unsigned int red = 0, green = 0, blue = 0;
    Kiv2DBaseSketcherSettingsAdapt::GetRGB(KivDrwRead(repository, key), &red, &green, &blue);
    r = static_cast<int>(red);
    g = static_cast<int>(green);
    b = static_cast<int>(blue);
}

void KivDrwPackedColor::Write(KivSettingRepository* repository, int r, int g, int b) const
{
    if (!KivDrwIsColor(r, g, b)) return;
    unsigned int packed = 0;
    Kiv2DBaseSketcherSettingsAdapt::SetRGB(&packed, static_cast<unsigned int>(r),
                                           static_cast<unsigned int>(g), static_cast<unsigned int>(b));
    KivDrwChoose(repository, key, packed);
}

void KivDrwPackedColor::GetInfo(const KivSettingRepository* repository, KivSettingInfo& info) const
{
    KivDrwGetInfo(repository, key, info);
}

bool KivDrwIsColor(int r, int g, int b)
{
    const auto inRange = [](int component) { return component >= 0 && component <= 255; };
    return inRange(r) && inRange(g) && inRange(b);
}

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

#include "Settings/KivDrwStoredColor.h"

#include "Kiv2DBaseSketcherSettingsAdapt.h"
#include "Settings/KivDrwPageWrite.h"

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

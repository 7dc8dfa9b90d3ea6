#include "KivDrwColorServices.h"

#include "Lock/KivDrwLockComboColor.h"

namespace {

template <class Combo> void Deliver(Combo* combo, int& r, int& g, int& b)
{
    if (!combo) return;
    unsigned int red = 0, green = 0, blue = 0;
    combo->GetSelectedColor(&red, &green, &blue);
    r = static_cast<int>(red);
    g = static_cast<int>(green);
    b = static_cast<int>(blue);
}

template <class Combo> void Select(Combo* combo, int r, int g, int b)
{
    if (combo)
        combo->SetSelectedColor(static_cast<unsigned int>(r), static_cast<unsigned int>(g),
                                static_cast<unsigned int>(b));
}

} // namespace

void GetColorRGB(KivComboColor* combo, int& r, int& g, int& b)
{
    Deliver(combo, r, g, b);
}
void GetColorRGB(KivDrwLockComboColor* combo, int& r, int& g, int& b)
{
    Deliver(combo, r, g, b);
}
void SetColorRGB(KivComboColor* combo, const int& r, const int& g, const int& b)
{
    Select(combo, r, g, b);
}
void SetColorRGB(KivDrwLockComboColor* combo, const int& r, const int& g, const int& b)
{
    Select(combo, r, g, b);
}

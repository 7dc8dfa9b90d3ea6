#include "Sheet/SheetStyle.h"

#include "Workbench/KivDraftingSettings.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLongestAxis = 1.0e5;
// Finer steps than this are beyond any hand and screen; they count as none.
constexpr double kFinestAngle = 1.0e-3;

template <class Value> Value Asked(KivDraftingSettings& settings, HRESULT (KivDraftingSettings::*ask)(Value&))
{
    Value value{};
    (settings.*ask)(value);
    return value;
}

bool Switch(KivDraftingSettings& settings, HRESULT (KivDraftingSettings::*ask)(unsigned char&))
{
    return Asked(settings, ask) != 0;
}

QColor Color(KivDraftingSettings& settings, HRESULT (KivDraftingSettings::*ask)(int&, int&, int&))
{
    int red = 0, green = 0, blue = 0;
    (settings.*ask)(red, green, blue);
    const auto component = [](int value) { return std::clamp(value, 0, 255); };
    return QColor(component(red), component(green), component(blue));
}

// Comparisons are written so that what is not a number fails them.
double Spacing(double stored)
{
    return stored > 0.0 && std::isfinite(stored) ? stored : 0.0;
}

double AxisLength(double stored)
{
    return stored > 0.0 ? std::min(stored, kLongestAxis) : 0.0;
}

double SnapAngle(double stored)
{
    return stored >= kFinestAngle && stored < 360.0 ? stored : 0.0;
}

} // namespace

SheetStyle SheetStyle::Read(KivDraftingSettings& settings)
{
    using Settings = KivDraftingSettings;
    SheetStyle style;
    style.rulers = Switch(settings, &Settings::GetShowRuler);
    style.grid = Switch(settings, &Settings::GetDisplayGrid);
    style.snapsToGrid = Switch(settings, &Settings::GetSnapToPoint);
    style.spacingH = Spacing(Asked(settings, &Settings::GetPrimarySpaceH));
    style.partsH = std::max(1, Asked(settings, &Settings::GetGraduationH));
    // The vertical grid has values of its own only while distortions are allowed.
    const bool distorted = Switch(settings, &Settings::GetAllowDistortions);
    style.spacingV = distorted ? Spacing(Asked(settings, &Settings::GetPrimarySpaceV)) : style.spacingH;
    style.partsV = distorted ? std::max(1, Asked(settings, &Settings::GetGraduationV)) : style.partsH;

    style.sheet = Color(settings, &Settings::GetSheetColor);
    style.sheetGraduated = Switch(settings, &Settings::GetSheetColorGraduated);
    style.detail = Color(settings, &Settings::GetDetailColor);
    style.detailGraduated = Switch(settings, &Settings::GetDetailColorGraduated);

    style.parameters = Switch(settings, &Settings::GetDisplayParameter);
    style.relations = Switch(settings, &Settings::GetDisplayRelation);

    style.axis = Switch(settings, &Settings::Get2DAxisDisplay);
    style.axisZooms = Switch(settings, &Settings::Get2DAxisZoom);
    style.axisLength = AxisLength(Asked(settings, &Settings::Get2DAxisLength));

    style.snapAngle = SnapAngle(Asked(settings, &Settings::GetRotationSnapAngle));
    style.alwaysSnapsAngle = Switch(settings, &Settings::GetRotationAutoSnap);

    style.skipsWelcome = Switch(settings, &Settings::GetHideWhenStartWkb);
    return style;
}

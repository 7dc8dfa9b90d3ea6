#include "Sheet/SheetStyle.h"

#include "KivDrwSettingAccess.h"
#include "Workbench/KivDraftingSettings.h"
#include "Workbench/KivSketcherSettings.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLongestAxis = 1.0e5;
constexpr double kLargestSymbol = 50.0;
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

double Bounded(double stored, double most)
{
    return stored > 0.0 ? std::min(stored, most) : 0.0;
}

double SnapAngle(double stored)
{
    return stored >= kFinestAngle && stored < 360.0 ? stored : 0.0;
}

// In the order of SheetConstraint.
constexpr std::array kShown = {KivDrwKeys::CstVisuHori,   KivDrwKeys::CstVisuVerti,
                               KivDrwKeys::CstVisuPara,   KivDrwKeys::CstVisuPerpen,
                               KivDrwKeys::CstVisuConcen, KivDrwKeys::CstVisuCoinci,
                               KivDrwKeys::CstVisuTangen, KivDrwKeys::CstVisuSym};
static_assert(kShown.size() == kSheetConstraints);

template <class Ask> QColor Color(const Ask& ask)
{
    unsigned int red = 0, green = 0, blue = 0;
    ask(red, green, blue);
    const auto component = [](unsigned int value) { return static_cast<int>(std::min(value, 255U)); };
    return QColor(component(red), component(green), component(blue));
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
    style.axisLength = Bounded(Asked(settings, &Settings::Get2DAxisLength), kLongestAxis);

    style.snapAngle = SnapAngle(Asked(settings, &Settings::GetRotationSnapAngle));
    style.alwaysSnapsAngle = Switch(settings, &Settings::GetRotationAutoSnap);

    style.skipsWelcome = Switch(settings, &Settings::GetHideWhenStartWkb);
    return style;
}

SheetSketchStyle SheetSketchStyle::Read(KivSketcherSettings& sketcher, const KivSettingRepository* repository)
{
    const auto read = [repository](const auto& key) { return KivDrwRead(repository, key); };
    SheetSketchStyle style;
    const bool isShown = read(KivDrwKeys::CstVisu) != 0;
    for (std::size_t i = 0; i < kSheetConstraints; ++i)
        style.constraints[i] = isShown && read(kShown[i]) != 0;
    style.symbolSize = Bounded(read(KivDrwKeys::CstRefSize), kLargestSymbol);
    const auto component = [&](const auto& key) { return std::clamp(read(key), 0, 255); };
    style.symbols = QColor(component(KivDrwKeys::CstColorR), component(KivDrwKeys::CstColorG),
                           component(KivDrwKeys::CstColorB));

    style.diagnoses = sketcher.GetDiagElts() != 0;
    for (std::size_t i = 0; style.diagnoses && i < kDiagnostics; ++i)
        style.diagnostics[i] = Color([&](auto&... rgb) {
            sketcher.GetColorDiagElts(static_cast<int>(i) + 1, rgb...); // they are counted from 1
        });
    style.construction = Color([&](auto&... rgb) { sketcher.GetColorConstructElts(rgb...); });

    style.centers = sketcher.GetCreateCenter() != 0;
    style.endPoints = read(KivDrwKeys::DrwEndPtsDuplGenGeom) != 0;
    style.drags = sketcher.GetDragElts() != 0;
    style.dragsEndPoints = style.drags && sketcher.GetDragWithEndPts() != 0;
    style.position = sketcher.GetShowPosition() != 0;

    style.smartPick = Color([&](auto&... rgb) { sketcher.GetColorSmartPick(rgb...); });
    style.picksSupports = sketcher.GetPosSupports() != 0;
    style.picksAlignment = sketcher.GetPosHorVertTo() != 0;
    return style;
}

#include "Sheet/SheetSketchStyle.h"

#include "KivDrwSettingAccess.h"
#include "Workbench/KivSketcherSettings.h"

#include <algorithm>

namespace {

constexpr double kLargestSymbol = 50.0;

// In the order of SheetConstraint.
constexpr std::array kShown = {KivDrwKeys::CstVisuHori,   KivDrwKeys::CstVisuVerti,
                               KivDrwKeys::CstVisuPara,   KivDrwKeys::CstVisuPerpen,
                               KivDrwKeys::CstVisuConcen, KivDrwKeys::CstVisuCoinci,
                               KivDrwKeys::CstVisuTangen, KivDrwKeys::CstVisuSym};
static_assert(kShown.size() == kSheetConstraints);

// What is not a number fails the comparison.
double Size(double stored)
{
    return stored > 0.0 ? std::min(stored, kLargestSymbol) : 0.0;
}

template <class Ask> QColor Color(const Ask& ask)
{
    unsigned int red = 0, green = 0, blue = 0;
    ask(red, green, blue);
    const auto component = [](unsigned int value) { return static_cast<int>(std::min(value, 255U)); };
    return QColor(component(red), component(green), component(blue));
}

} // namespace

SheetSketchStyle SheetSketchStyle::Read(KivSketcherSettings& sketcher, const KivSettingRepository* repository)
{
    const auto read = [repository](const auto& key) { return KivDrwRead(repository, key); };
    SheetSketchStyle style;
    const bool isShown = read(KivDrwKeys::CstVisu) != 0;
    for (std::size_t i = 0; i < kSheetConstraints; ++i)
        style.constraints[i] = isShown && read(kShown[i]) != 0;
    style.symbolSize = Size(read(KivDrwKeys::CstRefSize));
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

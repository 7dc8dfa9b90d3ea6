#include "KivDrwValueKind.h"

#include <type_traits>

namespace {

using Kind = KivDrwValueKind;

// What a stored type means where nothing else is said, in the order of KivDrwValue.
constexpr Kind kOfType[] = {
    {"switch", 0.0, 1.0},
    {"line type", 0.0, 7.0},
    {"color component", 0.0, 1.0},
    {"length in millimeters", 0.0, 1.0e15},
    {"text", 0.0, 0.0},
};

constexpr Kind kColorComponent{"color component", 0.0, 255.0};
constexpr Kind kPackedColor{"packed color 0xRRGGBB", 0.0, 0xFFFFFF};
constexpr Kind kThickness{"thickness index", 0.0, 6.0};
constexpr Kind kAngle{"angle in degrees", 0.0, 360.0};
constexpr Kind kGraduation{"number of parts", 1.0, 100000.0};
constexpr Kind kQuality{"choice", 0.0, 3.0};
constexpr Kind kResolution{"resolution", 1.0, 1200.0};

struct Exception {
    const char* key;
    Kind kind;
};

constexpr Exception kExceptions[] = {
    {KivDrwKeys::RotSnapAngle.name, {"angle in degrees", 1.0, 355.0}},
    {KivDrwKeys::Drw_settings_GridSecondaryStep.name, kGraduation},
    {KivDrwKeys::Drw_settings_GridVSecondaryStep.name, kGraduation},
    {KivDrwKeys::DrwCalloutSize.name, {"choice", 0.0, 1.0}},
    {KivDrwKeys::SourceSheetType.name, {"choice", 0.0, 1.0}},
    {KivDrwKeys::DrwProject3DSymbol.name, {"choice", 0.0, 9.0}},
    {KivDrwKeys::GenWireFrameMod.name, {"choice", 1.0, 2.0}},
    {KivDrwKeys::DrwGenFilConfigure.name, {"choice", 1.0, 4.0}},
    {KivDrwKeys::DrwGenerationModeVal.name, {"choice", 0.0, 3.0}},
    {KivDrwKeys::DrwSectionThickness.name, kThickness},
    {KivDrwKeys::DrwDetailThickness.name, kThickness},
    {KivDrwKeys::DrwBrokenThickness.name, kThickness},
    {KivDrwKeys::DrwBreakoutThickness.name, kThickness},
    {KivDrwKeys::DrwSkinThickness.name, kThickness},
    {KivDrwKeys::DrwDefVisuPicture.name, kResolution},
    {KivDrwKeys::DrwDefPrintPicture.name, kResolution},
    {KivDrwKeys::KivDrwRasterMod.name, {"choice", 0.0, 2.0}},
    {KivDrwKeys::KivDrwLODVisuMod.name, kQuality},
    {KivDrwKeys::KivDrwLODPrintMod.name, kQuality},
    {KivDrwKeys::KivDrwHRVLOD.name, {"level of detail", 1.0, 15.0}},
    // A switch on its page, but a first start stores the level of detail here.
    {KivDrwKeys::KivDrwQmtAnnotLay.name, {"switch or level of detail", 0.0, 15.0}},
    {KivDrwKeys::DrwGenerationForBoxTol.name, {"length in meters", 0.0, 1.0e12}},
    {KivDrwKeys::GenDimSemiAutoTimeOut.name, {"time-out", 1.0, 300.0}},
    {KivDrwKeys::Drw_settings_DragModeR14.name, {"choice", 0.0, 2.0}},
    {KivDrwKeys::Drw_settings_ColorDiagOverDefinedElts.name, kPackedColor},
    {KivDrwKeys::Drw_settings_ColorDiagNotConsistentElts.name, kPackedColor},
    {KivDrwKeys::Drw_settings_ColorDiagNotChangedElts.name, kPackedColor},
    {KivDrwKeys::Drw_settings_ColorDiagWellDefinedElts.name, kPackedColor},
    {KivDrwKeys::Drw_settings_ColorConstructElts.name, kPackedColor},
    {KivDrwKeys::Drw_settings_ColorSmartPick.name, kPackedColor},
    {KivDrwKeys::LineUpOffsetAngle.name, kAngle},
    {KivDrwKeys::LineUpBaseOffsetAngle.name, kAngle},
    {KivDrwKeys::DrwAnnotSnapMod.name, {"choice", 0.0, 2.0}},
    {KivDrwKeys::DrwBalloonAssocMod.name, {"choice", 0.0, 2.0}},
};

// Integer colors are three keys of one stem; no other integer key ends in these capitals.
bool IsColorComponent(const KivDrwRow& row, const Kind& ofType)
{
    return &ofType == &kOfType[0] &&
           std::string_view("RGB").find(std::string_view(row.key).back()) != std::string_view::npos;
}

} // namespace

bool KivDrwValueKind::Holds(const KivDrwValue& value) const
{
    return std::visit(
        [this](const auto& plain) {
            if constexpr (std::is_same_v<std::decay_t<decltype(plain)>, KivUnicodeString>) {
                return true;
            } else {
                const auto number = static_cast<double>(plain);
                return number >= minimum && number <= maximum;
            }
        },
        value);
}

const KivDrwValueKind& KivDrwCatalogue::KindOf(const KivDrwRow& row)
{
    for (const Exception& exception : kExceptions) {
        if (std::string_view(exception.key) == row.key) return exception.kind;
    }
    const Kind& ofType = kOfType[row.makeDefault().index()];
    return IsColorComponent(row, ofType) ? kColorComponent : ofType;
}

#pragma once

#include "KivSettingKind.h"

#include <algorithm>

// How new views are generated, as the setting "DrwGenerationModeVal" stores it.
enum KivDrwGenerationMode { KivDrwExactMode = 0, KivDrwVbxMode = 1, KivDrwRasterMode = 2, KivDrwHrvMode = 3 };

// The kinds of settings that the entries of KivDrwSettings.def name.
namespace KivDrwKinds {

// Switches, 0 or 1.
inline constexpr KivSettingKind Switch{.name = "switch", .maximum = 1};
inline constexpr KivSettingKind StrictSwitch{.name = "switch", .maximum = 1, .isOnFor1Alone = true};

// Numbers.
// The divisions of the grid: the field takes decimals, prints as "%g" and cuts to a whole number.
inline constexpr KivSettingKind Graduation{.name = "number of parts",
                                           .minimum = 1,
                                           .maximum = 100000,
                                           .step = 1,
                                           .format = "%g",
                                           .cutsFractions = true};
inline constexpr KivSettingKind Resolution{
    .name = "resolution", .minimum = 1, .maximum = 1200, .step = 1, .decimals = 1, .initial = 5};
inline constexpr KivSettingKind DetailLevel{
    .name = "level of detail", .minimum = 1, .maximum = 15, .step = 1, .decimals = 0};
// A switch on its page, deliberately: but a first start stores the level of detail under it.
inline constexpr KivSettingKind SwitchOrDetailLevel{.name = "switch or level of detail",
                                                    .maximum = DetailLevel.maximum};
inline constexpr KivSettingKind TimeOut{.name = "time-out",
                                        .minimum = 1,
                                        .maximum = 300,
                                        .step = 1,
                                        .magnitude = KivDlgMagnitudeTime,
                                        .decimals = 4,
                                        .cutsFractions = true};
inline constexpr KivSettingKind LineType{.name = "line type", .maximum = 7};
inline constexpr KivSettingKind Thickness{.name = "thickness index", .maximum = 6};

// Measures.
constexpr KivSettingKind Millimeters(double step)
{
    return {.name = "length in millimeters",
            .maximum = 1.0e15,
            .step = step,
            .magnitude = KivDlgMagnitudeLength,
            .shownPerStored = 0.001,
            .storedPerShown = 1000.0};
}
inline constexpr KivSettingKind SheetLength = Millimeters(5);
inline constexpr KivSettingKind SymbolLength = Millimeters(1);
// Stored as the field keeps it, without a factor, deliberately.
inline constexpr KivSettingKind Tolerance{
    .name = "length in meters", .maximum = 1.0e12, .step = 0.001, .magnitude = KivDlgMagnitudeLength};
inline constexpr KivSettingKind Angle{.name = "angle in degrees",
                                      .maximum = 360,
                                      .step = 1,
                                      .magnitude = KivDlgMagnitudeAngle,
                                      .shownPerStored = 0.017453292519943295,
                                      .storedPerShown = 57.29577951308232};
// The ceiling of 355 degrees and the factors are deliberate.
inline constexpr KivSettingKind SnapAngle{.name = "angle in degrees",
                                          .minimum = 1,
                                          .maximum = 355,
                                          .step = 1,
                                          .magnitude = KivDlgMagnitudeAngle,
                                          .shownPerStored = 0.017453292519943393,
                                          .storedPerShown = 57.295779513082,
                                          .initial = 1};

// Colors.
inline constexpr KivSettingKind ColorComponent{
    .name = "color component", .maximum = 255, .color = KivSettingKind::Color::Component};
inline constexpr KivSettingKind FloatColorComponent{
    .name = "color component", .maximum = 1, .color = KivSettingKind::Color::Component};
inline constexpr KivSettingKind PackedColor{
    .name = "packed color 0xRRGGBB", .maximum = 0xFFFFFF, .color = KivSettingKind::Color::Packed};

// Choices: the range is theirs.
constexpr KivSettingKind OneOf(KivSettingKind kind)
{
    const auto byValue = [](const auto& left, const auto& right) { return left.value < right.value; };
    const auto choices = kind.Choices();
    kind.minimum = std::min_element(choices.begin(), choices.end(), byValue)->value;
    kind.maximum = std::max_element(choices.begin(), choices.end(), byValue)->value;
    return kind;
}
inline constexpr KivSettingKind CalloutSize =
    OneOf({.name = "choice", .catalogue = "KivDrwFrameLayout", .choices = {{"Scaled", 0}, {"Constant", 1}}});
inline constexpr KivSettingKind SheetSource =
    OneOf({.name = "choice", .choices = {{"radioSheetFirst", 1}, {"radioSheetOther", 0}}});
inline constexpr KivSettingKind SheetFormat =
    OneOf({.name = "switch", .choices = {{"radSheetStyle", 1}, {"radSheetCurrent", 0}}, .otherwise = 1});
// In the order in which the buttons are made, deliberately not that of their positions.
inline constexpr KivSettingKind FilletStyle =
    OneOf({.name = "choice",
           .choices = {{"radioBoundaries", 1}, {"radioSymbo", 2}, {"radioProjEd", 4}, {"radioOrigEd", 3}}});
inline constexpr KivSettingKind WireFrameMode =
    OneOf({.name = "choice", .choices = {{"radioHidden", 1}, {"radioVisible", 2}}, .otherwise = 2});
// 0: the symbol of the part; else the number of one.
inline constexpr KivSettingKind PointSymbol{.name = "choice", .maximum = 9};
// Modes 2 and 3 are offered the other way round, deliberately.
inline constexpr KivSettingKind GenerationMode = OneOf({.name = "choice",
                                                        .catalogue = "KivDrwOptView",
                                                        .choices = {{"ExactView", KivDrwExactMode},
                                                                    {"VbxView", KivDrwVbxMode},
                                                                    {"HRV", KivDrwHrvMode},
                                                                    {"PictureView", KivDrwRasterMode}}});
inline constexpr KivSettingKind RasterMode =
    OneOf({.name = "choice",
           .catalogue = "KivDrwButtonRasterView",
           .choices = {{"HRD_Mode", 0}, {"ShadingMode", 1}, {"ShadingWithEdgesMode", 2}}});
inline constexpr KivSettingKind PictureQuality = OneOf(
    {.name = "choice",
     .catalogue = "KivDrwButtonRasterView",
     .choices = {
         {"LowQualityMode", 0}, {"NormalQualityMode", 1}, {"HighQualityMode", 2}, {"CustomizeMode", 3}}});
inline constexpr KivSettingKind DragMode =
    OneOf({.name = "choice",
           .choices = {{"radioDragStandard", 0}, {"radioDragMinimum", 1}, {"radioDragRelaxation", 2}}});
inline constexpr KivSettingKind SnapMode = OneOf(
    {.name = "choice",
     .choices = {{"radioAnnotSnapOnGrid", 0}, {"radioAnnotSnapOnOrient", 1}, {"radioAnnotSnapBoth", 2}}});
inline constexpr KivSettingKind BalloonText =
    OneOf({.name = "choice",
           .catalogue = "KivDrwFrameAnnot",
           .choices = {{"Number", 0}, {"Instance", 1}, {"Part", 2}}});

inline constexpr KivSettingKind Text{.name = "text"};

} // namespace KivDrwKinds

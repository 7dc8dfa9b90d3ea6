#include "TestPage.h"

#include <string>

KivSettingInfo TestPage::LockedInfo(const char* key)
{
    KivSettingInfo info;
    info.key = key;
    info.locked = true;
    info.lockLayer = "site";
    info.lockFile = "/srv/site/Drafting.kivsettings";
    return info;
}

KivDlgFrame* TestPage::Row(KivDialog* group, short row, short column, const char* name,
                           const KivSettingInfo& info)
{
    auto* frame = new KivDlgFrame(group, name);
    frame->SetGridConstraints(row, column, 1, 1, KivDlgAttachAllSides);
    auto* lock = new KivDlgLock(frame, KivString(name) + "Lock", info, 0);
    lock->SetGridConstraints(0, 0, 1, 1, KivDlgAttachAllSides);
    return frame;
}

KivDlgLabel* TestPage::Label(KivDialog* group, short row, const char* name, const char* title,
                             KivDialog* control)
{
    auto* frame = new KivDlgFrame(group, name);
    frame->SetGridConstraints(row, 0, 1, 1, KivDlgAttachAllSides);
    auto* space = new KivDlgCheckButton(frame, "CheckLock", 0);
    space->SetIconName("CheckLock", "", "", "", 0);
    space->SetVisibility(KivDlgReserved);
    space->SetGridConstraints(0, 0, 1, 1, KivDlgAttachAllSides);
    auto* label = new KivDlgLabel(frame, KivString(name) + "_label", 0);
    label->SetGridConstraints(0, 1, 1, 1, KivDlgAttachLeftCentered);
    label->SetTitle(title);
    label->SetLabeledControl(control);
    return label;
}

std::array<KivDlgRadioButton*, 3> TestPage::Choice(short column, const char* name, const KivSettingInfo& info)
{
    KivDlgFrame* row = Row(points, 0, column, name, info);
    auto* inner = Place(row, new KivDlgFrame(row, KivString(name) + "locked"), nullptr, "");
    const auto button = [&](short line, const char* title) {
        auto* made = new KivDlgRadioButton(inner, KivString(name) + std::to_string(line).c_str(), 0);
        made->SetTitle(title);
        made->SetHelp("How points are drawn.");
        made->SetGridConstraints(line, 0, 1, 1, KivDlgAttachLeftCentered);
        return made;
    };
    return {button(0, "As in the style"), button(1, "Always a cross"), button(2, "By the kind of element")};
}

TestPage::TestPage(KivEditorPage& page)
{
    const KivSettingInfo free;
    auto* frame = new KivDlgFrame(&page, "generalFrame");
    frame->SetGridConstraints(0, 0, 1, 1, KivDlgAttachAllSides);

    grid = new KivDlgToolsOptionsFrame(frame, "frameGrid", "I_DisplayGrid");
    grid->SetGridConstraints(0, 0, 1, 1, KivDlgAttachAllSides);
    grid->SetTitle("Grid");
    KivDlgFrame* row = Row(grid, 0, 0, "checkGrid", free);
    show = Place(row, new KivDlgCheckButton(row, "checkGrid_dialog", 0), "&Display the grid on every sheet",
                 "Draws the grid on the sheet.");
    show->SetLongHelp("Draws the grid on the sheet, below everything else. It is never printed.");
    row = Row(grid, 1, 0, "checkSnap", LockedInfo("SnapToPoint"));
    snap = Place(row, new KivDlgCheckButton(row, "checkSnap_dialog", 0), "&Snap to point",
                 "Points jump to the nearest crossing of the grid.");
    row = Row(grid, 2, 0, "checkAllowDistortions", free);
    distort = Place(row, new KivDlgCheckButton(row, "checkAllowDistortions_dialog", 0), "Allow &distortions",
                    "Gives the vertical grid a spacing of its own.");
    row = Row(grid, 3, 1, "editorH", free);
    horizontal = Place(row, new KivDlgSpinner(row, "editorH_dialog", 0), nullptr, "Spacing of the grid.");
    row = Row(grid, 3, 2, "editorV", free);
    vertical = Place(row, new KivDlgSpinner(row, "editorV_dialog", 0), "Vertical spacing", "");
    for (KivDlgSpinner* spinner : {horizontal, vertical}) {
        spinner->SetUnit(KivDlgUnitMillimeter);
        spinner->SetMinMaxStep(0.0, 1.0e12, 0.005, 1);
        spinner->SetVisibleTextWidth(9);
        spinner->SetValue(0.1, 0);
    }
    vertical->SetSensitivity(KivDlgDisabled);
    vertical->SetUnavailableHelp("Available when “Allow distortions” is on.");
    Label(grid, 3, "labelSpacing", "Primary s&pacing:", horizontal);
    row = Row(grid, 4, 1, "editorAngle", LockedInfo("RotSnapAngle"));
    angle = Place(row, new KivDlgSpinner(row, "editorAngle_dialog", 0), nullptr, "Angle of the snap.");
    angle->SetUnit(KivDlgUnitDegree);
    angle->SetVisibleTextWidth(9);
    angle->SetValue(0.26179938779914941, 0);
    Label(grid, 4, "labelAngle", "Snap &angle:", angle);

    colors = new KivDlgToolsOptionsFrame(frame, "frameColor", "I_ColorChooser");
    colors->SetGridConstraints(1, 0, 1, 1, KivDlgAttachAllSides);
    colors->SetTitle("Colors && lines");
    row = Row(colors, 0, 1, "comboBackground", free);
    background = Place(row, new KivComboColor(row, "comboBackground_dialog", 0, 255, 255, 255, 0, 0, 0),
                       nullptr, "Color of the sheet.");
    Label(colors, 0, "labelBackground", "Sheet &background:", background);
    row = Row(colors, 1, 1, "comboDetail", LockedInfo("DetailColor"));
    lockedColor = Place(row, new KivComboColor(row, "comboDetail_dialog", 0, 12, 34, 56, 0, 0, 0), nullptr,
                        "Color of detail sheets.");
    Label(colors, 1, "labelDetail", "D&etail background:", lockedColor);
    row = Row(colors, 2, 1, "comboType", free);
    type = Place(row, new KivComboDashed(row, "comboType_dialog", 0, 0, 0), nullptr, "Type of the line.");
    type->AddOtherType("S_DrwBreakLine8", 1);
    type->SetSelect(4U);
    Label(colors, 2, "labelType", "Line &type:", type);
    row = Row(colors, 4, 1, "comboDirection", free);
    direction = Place(row, new KivDlgCombo(row, "comboDirection_dialog", 0), nullptr, "");
    for (const char* line : {"Left to right", "Top to bottom", "Diagonal"}) direction->SetLine(line);
    direction->SetSelect(0);
    // As a label may be tied to the frame that wraps a control.
    Label(colors, 4, "labelDirection", "Gradient di&rection:", direction->GetParentDialog());
    row = Row(colors, 5, 1, "editorFile", free);
    file =
        Place(row, new KivDlgEditor(row, "editorFile_dialog", 0), nullptr, "Where symbols are looked for.");
    file->SetText("symbols", 0);
    Label(colors, 5, "labelFile", "Symbol &file:", file);

    points = new KivDlgToolsOptionsFrame(frame, "framePoints", "I_DisplayGrid");
    points->SetGridConstraints(2, 0, 1, 1, KivDlgAttachAllSides);
    points->SetTitle("Points");
    choices = Choice(0, "radioPoint", free);
    otherChoices = Choice(2, "radioOther", LockedInfo("PointStyle"));
    otherChoices[1]->SetState(KivDlgChecked, 0);
    row = Row(points, 1, 1, "comboSymbol", free);
    symbol = Place(row, new KivComboSymbol(row, "comboSymbol_dialog", 0), nullptr, "Symbol of a point.");
    Label(points, 1, "labelSymbol", "Point s&ymbol:", symbol);
    row = Row(points, 2, 0, "pushSettings", free);
    settings = Place(row, new KivDlgPushButton(row, "pushSettings_dialog", 0), "Point se&ttings…",
                     "Opens the settings of points.");
}

#pragma once

#include <string>
#include <vector>

// What each page offers, as its users know it.

// A control and the keys that it edits, the one whose lock governs it first. A control that its page enables
// by another one names that check button.
struct TableRow {
    const char* control;
    std::vector<std::string> keys;
    const char* enabledBy = "";
};

struct PageTable {
    const char* page;                  // its title
    const char* catalogue;             // of its texts
    std::vector<const char*> enabling; // settings with which every control is enabled
    std::vector<TableRow> rows;
    std::vector<const char*> buttons = {}; // that open windows with further rows
    std::size_t keys = 0;                  // all that the page edits
};

inline const std::vector<PageTable>& PageTables()
{
    static const std::vector<PageTable> tables = {
        {"General",
         "Kiv2DBaseOptGalFrm",
         {"int Drw_settings_AllowDistortions = 1"},
         {{"checkRuler", {"Ruler"}},
          {"checkGrid", {"Drw_settings_GridDisplay"}},
          {"checkSnap", {"Drw_settings_GridSnapPt"}},
          {"editorGridSpacing", {"Drw_settings_GridPrimarySpacing"}},
          {"editorGridSpacingV", {"Drw_settings_GridVPrimarySpacing"}, "checkAllowDistortions"},
          {"editorGridGraduation", {"Drw_settings_GridSecondaryStep"}},
          {"editorGridGraduationV", {"Drw_settings_GridVSecondaryStep"}, "checkAllowDistortions"},
          {"checkAllowDistortions", {"Drw_settings_AllowDistortions"}},
          {"spinnerRotSnapAngle", {"RotSnapAngle"}},
          {"checkRotSnapAuto", {"RotSnapAuto"}},
          {"comboBackgroundColor", {"BackgroundColorRed", "BackgroundColorGreen", "BackgroundColorBlue"}},
          {"comboBackgroundColorDD",
           {"BackgroundColorRedDitto", "BackgroundColorGreenDitto", "BackgroundColorBlueDitto"}},
          {"checkGraduatedColor", {"GraduatedColor"}},
          {"checkGraduatedColorDD", {"GraduatedColorDitto"}},
          {"_checkTreeParameters", {"TreeParameters"}},
          {"_checkTreeFormulas", {"TreeFormulas"}},
          {"checkViewReferential", {"ViewReferential"}},
          {"checkViewRefZoom", {"ViewRefZoom"}},
          {"spinnerViewAxisSize", {"ViewAxisSize"}},
          {"chkHideStartWkb", {"HideWhenStartWkb"}}},
         {},
         24},
        {"Administration",
         "KivDrwOptAdmin",
         {},
         {{"checkOnlyFileNewFrom", {"DrwOnlyFileNewFrom"}},
          {"checkSwitchStandard", {"DrwLockSwitchStandard"}},
          {"checkUpdateStandard", {"DrwLockUpdateStandard"}},
          {"checkBackgroundView", {"DrwLockBackgroundView"}},
          {"chkStyleCreation", {"DrwStyleCreation"}},
          {"checkOnlyUserDefault", {"DrwOnlyUserDefault"}},
          {"checkAllowUserDefault", {"DrwAllowUserDefault"}},
          {"chkReset", {"DrwButtonReset"}},
          {"chkPreventGVS", {"DrwPreventGVS"}},
          {"checkDimDriving3D", {"DrwLockDimDriving3D"}},
          {"radSheetStyle", {"KivDrwSheetFromStyle"}},
          {"radSheetCurrent", {"KivDrwSheetFromStyle"}}},
         {},
         11},
        {"Annotation",
         "Kiv2DBaseOptAnnotFrm",
         {"int DrwBalloonAssoc = 1"},
         {{"TextSnappingOn", {"DrwTextSnappingOn"}},
          {"TextLeadSnappingOn", {"DrwTextLeadSnappingOn"}},
          {"GDTSnappingOn", {"DrwGDTSnappingOn"}},
          {"AnnotActivSnap", {"DrwAnnotActivSnap"}},
          {"DittoInvViewScale", {"DrwDittoInvViewScale"}},
          {"DittoDrag", {"KivDrwPreventDittoDrag"}},
          {"DittoScale", {"KivDrwPreventDittoScale"}},
          {"combBalAssocMod", {"DrwBalloonAssocMod"}, "chkBalAssoc"},
          {"chkBalAssoc", {"DrwBalloonAssoc"}},
          {"chkTableResize", {"KivDrwResizeTableEdition"}},
          {"chkTableAutoSplit", {"KivDrwTableAutoSplit"}},
          {"radioAnnotSnapOnGrid", {"DrwAnnotSnapMod"}},
          {"radioAnnotSnapOnOrient", {"DrwAnnotSnapMod"}},
          {"radioAnnotSnapBoth", {"DrwAnnotSnapMod"}}},
         {"pushAnnotActiveSnap"},
         12},
        {"Manipulators",
         "Kiv2DBaseOptManipFrm",
         {},
         {{"editorManipRefSize", {"ManipRefSize"}},
          {"checkManipZoom", {"ManipZoom"}},
          {"_checkDimORunCre", {"ORunCre"}},
          {"_checkDimORunMod", {"ORunMod"}},
          {"_checkDimBlankCre", {"BlankingCre"}},
          {"_checkDimBlankMod", {"BlankingMod"}},
          {"_checkDimBeforeCre", {"BeforeCre"}},
          {"_checkDimBeforeMod", {"BeforeMod"}},
          {"_checkDimAfterCre", {"AfterCre"}},
          {"_checkDimAfterMod", {"AfterMod"}},
          {"_checkDimMoveValueCre", {"MoveValueCre"}},
          {"_checkDimMoveValueMod", {"MoveValueMod"}},
          {"_checkDimMoveDimLineCre", {"MoveDimLineCre"}},
          {"_checkDimMoveDimLineMod", {"MoveDimLineMod"}},
          {"_checkDimMove2dPartCre", {"Move2dPartCre"}},
          {"_checkDimMove2dPartMod", {"Move2dPartMod"}}},
         {},
         16},
        {"Generation",
         "KivDrwOptGenFrame",
         // Each change writes all of them: what is not there yet would count as changed.
         {"int GenDim = 0", "int GenDimFilter = 0", "int GenDimAutoPos = 0", "int GenDimAutoTrans = 0",
          "int GenDimAnal = 0", "int DrwGenDimFromPart = 0", "int GenDimSemiAutoTimeOut = 2",
          "int GenBalloonByInstance = 0"},
         {{"checkGenDim", {"GenDim"}},
          {"checkGenDimFilter", {"GenDimFilter"}},
          {"checkGenDimAutoPos", {"GenDimAutoPos"}},
          {"checkGenDimAutoTrans", {"GenDimAutoTrans"}},
          {"checkGenDimAnal", {"GenDimAnal"}},
          {"checkGenDimFromPart", {"DrwGenDimFromPart"}},
          {"spinnerGenDimSemiAuto", {"GenDimSemiAutoTimeOut"}},
          {"checkGenBalloonByInstance", {"GenBalloonByInstance"}}},
         {},
         8},
        {"Compatibility",
         "KivDrwOptTrelFrm",
         {"int DrwPreventGVS = 0"},
         {{"_checkCenterEndPoints", {"ImportCenterEndPoints"}},
          {"checkConvertDimensionAsGraphic", {"ConvertDimensionAsGraphic"}},
          {"chkExplodeDitto", {"ExplodeDitto"}},
          {"chkExplodeSymbolo", {"DrwExplodeSymbolo"}},
          {"checkBlinkRed", {"DrwBlinkRed"}},
          {"chkGVSXml", {"DrwGVSXmlTrel"}}},
         {},
         6},
    };
    return tables;
}

#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

// What each page offers, as its users know it.

// Enabled by rules that its page proves itself.
inline constexpr std::string_view kByItsPage = "?";

// A control and the keys that it edits, the one whose lock governs it first. A control that its page enables
// by another one names that check button, or several of which one suffices ("checkA|checkB"); these may be
// rows with another one themselves. In the table it stands before them.
struct TableRow {
    const char* control;
    std::vector<std::string> keys;
    std::string_view enabledBy = {};
};

// The keys of a color.
inline std::vector<std::string> Rgb(const std::string& stem)
{
    return {stem + "R", stem + "G", stem + "B"};
}

// A window that stores what it shows when it is closed.
struct WindowTable {
    const char* button;                // that opens it
    const char* name;                  // of the window
    const char* catalogue;             // of its texts
    std::vector<const char*> enabling; // settings with which it can be opened and every control is enabled
    std::vector<TableRow> rows;
};

struct PageTable {
    const char* page;                  // its title
    const char* catalogue;             // of its texts
    std::vector<const char*> enabling; // settings with which every control is enabled
    std::vector<TableRow> rows;
    std::vector<const char*> buttons = {}; // that open windows with further rows
    std::vector<WindowTable> windows = {};
};

// How a failing test names it.
inline void PrintTo(const PageTable& table, std::ostream* out)
{
    *out << table.page;
}

// The kinds of smart picking on the Geometry page.
inline constexpr const char* kPicks =
    "checkPickCoincid|checkPickAlign|checkPickParaPerpenTang|checkPickHoriVerti";

inline const std::vector<PageTable>& PageTables()
{
    static const std::vector<PageTable> tables = {
        {
            "General",
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
        },
        {
            "Administration",
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
        },
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
         {"pushAnnotActiveSnap"}},
        {
            "Manipulators",
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
        },
        {
            "Generation",
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
        },
        {
            "Compatibility",
            "KivDrwOptTrelFrm",
            {"int DrwPreventGVS = 0"},
            {{"_checkCenterEndPoints", {"ImportCenterEndPoints"}},
             {"checkConvertDimensionAsGraphic", {"ConvertDimensionAsGraphic"}},
             {"chkExplodeDitto", {"ExplodeDitto"}},
             {"chkExplodeSymbolo", {"DrwExplodeSymbolo"}},
             {"checkBlinkRed", {"DrwBlinkRed"}},
             {"chkGVSXml", {"DrwGVSXmlTrel"}, kByItsPage}},
        },
        {
            "Layout",
            "KivDrwOptLayoutFrame",
            {},
            {{"checkViewName", {"ViewName"}},
             {"checkViewScale", {"ViewScale"}},
             {"checkViewFrame", {"ViewFrame"}},
             {"comboCalloutSize", {"DrwCalloutSize"}},
             {"checkViewOrientation", {"ViewOrientation"}},
             {"checkStrictPositioning", {"KivDrwStrictPositioning"}},
             {"checkGenPropagation", {"GenPropagation"}},
             {"radioSheetOther", {"SourceSheetType"}, "checkBackgroundToCopy"},
             {"radioSheetFirst", {"SourceSheetType"}, "checkBackgroundToCopy"},
             {"checkBackgroundToCopy", {"BackgroundViewToCopy"}},
             {"editorTitleBlockPath", {"DrwFrameAndTitleBlockPath"}}},
        },
        {
            "Geometry",
            "Kiv2DBaseOptGeoFrm",
            {},
            {{"checkCreateCenter", {"Drw_settings_CreateCenter"}},
             {"checkEndPtsDupli", {"DrwEndPtsDuplGenGeom"}},
             {"checkShowHV", {"Drw_settings_ShowPosition"}},
             {"checkDragEndPts", {"Drw_settings_DragWithEndPts"}, "checkGeomManip"},
             {"radioDragStandard", {"Drw_settings_DragModeR14"}, "checkGeomManip"},
             {"radioDragMinimum", {"Drw_settings_DragModeR14"}, "checkGeomManip"},
             {"radioDragRelaxation", {"Drw_settings_DragModeR14"}, "checkGeomManip"},
             {"checkGeomManip", {"Drw_settings_DragElts"}},
             {"comboSmartPickColor", {"Drw_settings_ColorSmartPick"}, kPicks},
             {"checkCstCreation", {"CstCreation"}, kPicks},
             {"checkPickCoincid", {"Drw_settings_CpltPosSupport"}},
             {"checkPickAlign", {"Drw_settings_CpltPosHorVertTo"}},
             {"checkPickParaPerpenTang", {"Drw_settings_CpltDirParPerpTan"}},
             {"checkPickHoriVerti", {"Drw_settings_CpltDirHorVert"}},
             {"spinnerCstRefSize", {"CstRefSize"}, "checkCstVisu"},
             {"comboCstColor", Rgb("CstColor"), "checkCstVisu"},
             {"checkCstHori", {"CstVisuHori"}, "checkCstVisu"},
             {"checkCstVerti", {"CstVisuVerti"}, "checkCstVisu"},
             {"checkCstPara", {"CstVisuPara"}, "checkCstVisu"},
             {"checkCstPerpen", {"CstVisuPerpen"}, "checkCstVisu"},
             {"checkCstConcen", {"CstVisuConcen"}, "checkCstVisu"},
             {"checkCstCoinci", {"CstVisuCoinci"}, "checkCstVisu"},
             {"checkCstTangen", {"CstVisuTangen"}, "checkCstVisu"},
             {"checkCstSym", {"CstVisuSym"}, "checkCstVisu"},
             {"checkCstVisu", {"CstVisu"}},
             {"comboOverCons", {"Drw_settings_ColorDiagOverDefinedElts"}, "checkVisuDiagnostic"},
             {"comboIncons", {"Drw_settings_ColorDiagNotConsistentElts"}, "checkVisuDiagnostic"},
             {"comboNotChan", {"Drw_settings_ColorDiagNotChangedElts"}, "checkVisuDiagnostic"},
             {"comboIsoCons", {"Drw_settings_ColorDiagWellDefinedElts"}, "checkVisuDiagnostic"},
             {"checkVisuDiagnostic", {"Drw_settings_DiagElts"}},
             {"comboConst", {"Drw_settings_ColorConstructElts"}}},
        },
        {
            "Dimension",
            "Kiv2DBaseOptDimFrm",
            {"int DrwDimOnNonVisGeom = 1"},
            {{"checkDimSketch", {"DimSketch"}},
             {"checkDimDrivingAuto", {"DimDrivingAuto"}},
             {"checkDimForce2D", {"DimForce2D"}},
             {"checkDimCircle", {"DimCircle"}},
             {"checkDimChamfer", {"DimDetectChamfer"}},
             {"checkDimApproximate", {"KivDrwAssocDimOnApproximate"}},
             {"spinnerDimLinePos", {"DimLinePosValue"}},
             {"checkDimLinePosRelative", {"DimLinePosRelative"}},
             {"checkDimLineUpEnds", {"DimLineUpEnds"}},
             {"spinnerLineUpBaseLength", {"LineUpBaseOffsetLength"}},
             {"spinnerLineUpBaseAngle", {"LineUpBaseOffsetAngle"}},
             {"spinnerLineUpLength", {"LineUpOffsetLength"}},
             {"spinnerLineUpAngle", {"LineUpOffsetAngle"}},
             {"checkLineUpStack", {"DrwLineUpStackVal"}},
             {"checkLineUpCumul", {"DrwLineUpCumulVal"}},
             {"checkLineUpFunnel", {"DrwLineUpAutoFunnel"}},
             {"comboDimNotUpToDate", Rgb("DimNotUpToDate"), "checkDimNotUpToDate"},
             {"checkDimNotUpToDate", {"DimNotUpToDate"}, "checkDimDesignMode"},
             {"comboDimNonAssoc", Rgb("DimNonAssociative"), "checkDimNonAssoc"},
             {"checkDimNonAssoc", {"DimNonAssociative"}, "checkDimDesignMode"},
             {"comboDimIsolated", Rgb("KivDrwIsolatedDim"), "checkDimIsolated"},
             {"checkDimIsolated", {"KivDrwIsolatedDim"}, "checkDimDesignMode"},
             {"comboDimBroken", Rgb("DimBroken"), "checkDimBroken"},
             {"checkDimBroken", {"DimBroken"}, "checkDimDesignMode"},
             {"comboDimFake", Rgb("DimFake"), "checkDimFake"},
             {"checkDimFake", {"DimFake"}, "checkDimDesignMode"},
             {"comboDimDriving", Rgb("DimDriving"), "checkDimDriving"},
             {"checkDimDriving", {"DimDriving"}, "checkDimDesignMode"},
             {"comboDimTrue", Rgb("DimTrue"), "checkDimTrue"},
             {"checkDimTrue", {"DimTrue"}, "checkDimDesignMode"},
             {"comboDim3DCst", Rgb("Dim3DCst"), "checkDim3DCst"},
             {"checkDim3DCst", {"Dim3DCst"}, "checkDimDesignMode"},
             {"comboDimOld3DCst", Rgb("DimNotUpToDate3DCst"), "checkDimOld3DCst"},
             {"checkDimOld3DCst", {"DimNotUpToDate3DCst"}, "checkDimDesignMode"},
             {"comboDimNonVis", Rgb("DrwDimOnNonVisGeom"), "checkDimNonVis"},
             {"checkDimNonVis", {"DrwDimOnNonVisGeom"}, "checkDimDesignMode"},
             {"checkDimDesignMode", {"DimDesignMode"}},
             {"checkDimSnapOnGrid", {"DimSnapOnGrid"}, "checkDimSnap"},
             {"checkDimSnapValue", {"DimSnapValue"}, "checkDimSnap"},
             {"checkDimSnap", {"DimSnap"}},
             {"checkDimMoveSubPart", {"DimMoveSubPart"}}},
        },
        {"View",
         "KivDrwOptViewFrame",
         // Each change writes many of them: what is not there yet would count as changed.
         {"int DrwPreventGVS = 1", "int GenAxisCreate = 1", "int GenCenterCreate = 1",
          "int GenThreadCreate = 1", "int GenFilCreate = 1", "int GenHiddenLines = 0", "int Gen3DColors = 0",
          "int GenWireFrame = 1", "int GenApplyUncut = 1", "int DrwGenerationModeVal = 0",
          "int DrwGenerationForBox = 1", "double DrwGenerationForBoxTol = 1", "int DrwExactPreview = 1",
          "int DrwOcclusionCulling = 0", "int DrwProject3DPts = 1", "int KivDrwQmtAnnotLay = 0",
          "int KivDrwDimClipNoShow = 1", "int KivDrwSelBodyInAss = 0", "int KivDrwGeomOf2DLView = 1"},
         {{"_checkGenAxis", {"GenAxisCreate"}, kByItsPage},
          {"_checkGenCenter", {"GenCenterCreate"}, kByItsPage},
          {"_checkGenThread", {"GenThreadCreate"}, kByItsPage},
          {"_checkGenFil", {"GenFilCreate"}, kByItsPage},
          {"_checkGenHiddenLines", {"GenHiddenLines"}, kByItsPage},
          {"_checkGen3DColors", {"Gen3DColors"}, kByItsPage},
          {"checkGenWireFrame", {"GenWireFrame"}, kByItsPage},
          {"checkGenApplyUncut", {"GenApplyUncut"}, kByItsPage},
          {"checkProject3DPts", {"DrwProject3DPts"}, kByItsPage},
          {"spinGenBox", {"DrwGenerationForBoxTol"}, "checkGenBox"},
          {"checkGenBox", {"DrwGenerationForBox"}},
          {"chkExactPreview", {"DrwExactPreview"}, kByItsPage},
          {"chkOcclusionCulling", {"DrwOcclusionCulling"}, kByItsPage},
          {"chkQmtAnnotLay", {"KivDrwQmtAnnotLay"}},
          {"chkDimClipNoShow", {"KivDrwDimClipNoShow"}},
          {"chkSelBodyInAss", {"KivDrwSelBodyInAss"}},
          {"chkGeomOf2DLView", {"KivDrwGeomOf2DLView"}},
          {"combViewMod", {"DrwGenerationModeVal"}}},
         {},
         {{"pushGenFil",
           "panelGenFilTitle",
           "KivDrwButtonGen",
           {},
           {{"radioBoundaries", {"DrwGenFilConfigure"}},
            {"radioSymbo", {"DrwGenFilConfigure"}},
            {"radioOrigEd", {"DrwGenFilConfigure"}},
            {"radioProjEd", {"DrwGenFilConfigure"}}}},
          {"project3DPtsPushButton",
           "panelProject3DPtsTitle",
           "KivDrwButtonGen",
           {},
           {{"comboSymbol", {"DrwProject3DSymbol"}},
            {"radioSymbolInherit", {"DrwProject3DSymbol"}},
            {"radioSymbol", {"DrwProject3DSymbol"}}}},
          {"pushGenWireFrameMod",
           "panelWireFrameMod",
           "KivDrwButtonGen",
           {},
           {{"radioVisible", {"GenWireFrameMod"}}, {"radioHidden", {"GenWireFrameMod"}}}},
          {"linetypePushButton",
           "LineTypeWnd",
           "KivDrwButtonSettings",
           {},
           {
               {"comboSectionLinetype", {"SectionLinetype"}},
               {"comboSectionThickness", {"DrwSectionThickness"}},
               {"comboDetailLinetype", {"DetailLinetype"}},
               {"comboDetailThickness", {"DrwDetailThickness"}},
               {"comboBrokenLinetype", {"BrokenLinetype"}},
               {"comboBrokenThickness", {"DrwBrokenThickness"}},
               {"comboBreakoutLinetype", {"BreakoutLinetype"}},
               {"comboBreakoutThickness", {"DrwBreakoutThickness"}},
               {"comboSkinLinetype", {"SkinLinetype"}},
               {"comboSkinThickness", {"DrwSkinThickness"}},
           }},
          {"pushRasterOptions",
           "panelRasterView",
           "KivDrwButtonRasterView",
           {"int DrwGenerationModeVal = 2", "int KivDrwLODVisuMod = 3", "int KivDrwLODPrintMod = 3"},
           {{"combRasterMod", {"KivDrwRasterMod"}},
            {"spinLODVisu", {"DrwDefVisuPicture"}},
            {"spinLODPrint", {"DrwDefPrintPicture"}},
            {"combLODVisu", {"KivDrwLODVisuMod"}},
            {"combLODPrint", {"KivDrwLODPrintMod"}}}},
          {"pushRasterOptions",
           "panelRasterView",
           "KivDrwButtonHRVView",
           {"int DrwGenerationModeVal = 3"},
           {{"spinHRVLOD", {"KivDrwHRVLOD"}}}}}},
    };
    return tables;
}

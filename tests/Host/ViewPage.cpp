#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgLabel.h"
#include "OptionsPages.h"
#include "Viewer/Kiv2DManipulator.h"
#include "Viewer/Kiv2DViewer.h"
#include "Viewer/KivUserHandViewer.h"

#include <cmath>

namespace {

class ViewPage : public OptionsPages {
protected:
    KivDialog& Named(const std::string& name) { return Node<KivDialog>(name); }
    bool IsEnabled(const char* name) { return Control(name).IsEnabled(); }
    void CloseAll(const std::string& name)
    {
        for (KivDlgDialog* window : Windows(name)) EXPECT_TRUE(KivUserHand::CloseWindow(*window));
        KivCommand::DrainDelayedDestruction();
    }
    static bool IsStored(const char* key)
    {
        int value = 0;
        return Repository().ReadSetting(key, &value, 1) == S_OK;
    }
};

// What enables each option: modes 0 to 3 while styles are prevented, then modes 0 to 3 while the style
// governs.
struct EnablingRow {
    std::vector<const char*> controls;
    std::string with;                // while the setting that they depend on is 1, or without such a one
    const char* dependsOn = nullptr; // the setting that they depend on
    std::string without = {};        // while it is 0
};

const EnablingRow kEnabling[] = {
    {{"_checkGenAxis", "_checkGenCenter", "_checkGenThread", "_checkGenFil", "checkGenWireFrame"},
     "1000 0000"},
    {{"_checkGenHiddenLines", "checkGenApplyUncut", "linetypePushButton"}, "1111 0000"},
    {{"_checkGen3DColors"}, "1010 0000"},
    {{"chkExactPreview", "chkOcclusionCulling"}, "1000 1000"},
    {{"pushRasterOptions"}, "0011 0011"},
    {{"checkGenBox", "combViewMod", "chkQmtAnnotLay", "chkDimClipNoShow", "chkSelBodyInAss",
      "chkGeomOf2DLView"},
     "1111 1111"},
    {{"pushGenFil"}, "1000 0000", "GenFilCreate", "0000 0000"},
    {{"pushGenWireFrameMod"}, "1000 1111", "GenWireFrame", "0000 1111"},
    {{"checkProject3DPts"}, "0000 0000", "DrwOcclusionCulling", "1000 0000"},
    {{"project3DPtsPushButton"}, "1000 0000", "DrwProject3DPts", "0000 0000"},
    {{"spinGenBox"}, "1111 1111", "DrwGenerationForBox", "0000 0000"},
};

TEST_F(ViewPage, EveryCellOfTheEnablingTableHolds)
{
    for (std::size_t mode = 0; mode < 4; ++mode) {
        for (const bool prevented : {true, false}) {
            for (const bool on : {true, false}) {
                std::string content = "int DrwPreventGVS = " + std::to_string(prevented) +
                                      "\nint DrwGenerationModeVal = " + std::to_string(mode) + "\n";
                for (const EnablingRow& row : kEnabling)
                    if (row.dependsOn)
                        content += std::string("int ") + row.dependsOn + " = " + std::to_string(on) + "\n";
                OpenOn(content);
                for (const EnablingRow& row : kEnabling) {
                    const std::string& cells = !row.dependsOn || on ? row.with : row.without;
                    for (const char* control : row.controls) {
                        EXPECT_EQ(IsEnabled(control), cells[mode + (prevented ? 0 : 5)] == '1')
                            << control << " with\n"
                            << content;
                        EXPECT_EQ(Control(control).WhyDisabled().IsEmpty(), IsEnabled(control)) << control;
                    }
                }
            }
        }
    }
}

TEST_F(ViewPage, ModesTwoAndThreeStandTheOtherWayRoundInTheCombo)
{
    OpenOn("");
    const struct {
        int line, mode;
        const char* content; // a control of the window that the button opens, if there is one
    } modes[] = {{2, 3, "spinHRVLOD"}, {3, 2, "combRasterMod"}, {1, 1, nullptr}, {0, 0, nullptr}};
    for (const auto& [line, mode, content] : modes) {
        EXPECT_TRUE(KivUserHand::Choose(Combo("combViewMod"), line));
        EXPECT_EQ(Stored("DrwGenerationModeVal", -1), mode);
        EXPECT_EQ(static_cast<bool>(Press("pushRasterOptions")), content != nullptr);
        // Both windows have the same name.
        ASSERT_EQ(Windows("panelRasterView").size(), content ? 1U : 0U);
        if (content) {
            EXPECT_NE(Windows("panelRasterView")[0]->FindDialog(content), nullptr);
            EXPECT_NE(Windows("panelRasterView")[0]->GetTitle(), "panelRasterView");
        }
        CloseAll("panelRasterView");
        session->Refill();
        EXPECT_EQ(Combo("combViewMod").GetSelect(), line);
    }
    OpenOn("int DrwGenerationModeVal = 9\n");
    EXPECT_EQ(Combo("combViewMod").GetSelect(), -1);
    EXPECT_FALSE(Press("pushRasterOptions"));
}

TEST_F(ViewPage, WhatTheStyleOrTheModeGovernsIsNotWritten)
{
    const std::vector<const char*> always = {"DrwOcclusionCulling", "DrwExactPreview", "DrwGenerationForBox",
                                             "KivDrwQmtAnnotLay", "KivDrwGeomOf2DLView"};
    const std::vector<const char*> byTheirOwnButton = {"KivDrwDimClipNoShow", "KivDrwSelBodyInAss"};
    const std::vector<const char*> unstyled = {"GenHiddenLines", "GenApplyUncut", "Gen3DColors"};
    const std::vector<const char*> exact = {"GenAxisCreate", "GenCenterCreate", "GenThreadCreate",
                                            "GenFilCreate",  "GenWireFrame",    "DrwProject3DPts"};
    for (const int prevented : {0, 1}) {
        for (const int mode : {0, 1}) {
            OpenOn("int DrwPreventGVS = " + std::to_string(prevented) +
                   "\nint DrwGenerationModeVal = " + std::to_string(mode) + "\n");
            EXPECT_TRUE(KivUserHand::Tick(Check("chkQmtAnnotLay")));
            for (const char* key : always) EXPECT_TRUE(IsStored(key)) << key;
            for (const char* key : unstyled) EXPECT_EQ(IsStored(key), prevented == 1) << key;
            for (const char* key : exact) EXPECT_EQ(IsStored(key), prevented == 1 && mode == 0) << key;
            for (const char* key : byTheirOwnButton) EXPECT_FALSE(IsStored(key)) << key;
        }
    }
    OpenOn("int DrwOcclusionCulling = 1\nint DrwProject3DPts = 1\n");
    EXPECT_TRUE(KivUserHand::Tick(Check("chkQmtAnnotLay")));
    EXPECT_FALSE(IsEnabled("checkProject3DPts") || IsEnabled("project3DPtsPushButton"));
    EXPECT_TRUE(KivUserHand::Tick(Check("chkOcclusionCulling")));
    EXPECT_TRUE(IsEnabled("checkProject3DPts") && IsEnabled("project3DPtsPushButton"));
}

TEST_F(ViewPage, KeepsItsOddities)
{
    OpenOn("int KivDrwDimClipNoShow = 2\nint KivDrwSelBodyInAss = 1\nint KivDrwQmtAnnotLay = 4\n"
           "int DrwGenerationForBox = 1\n");
    EXPECT_FALSE(IsChecked("chkDimClipNoShow")) << "only exactly 1 is on";
    EXPECT_TRUE(IsChecked("chkSelBodyInAss") && IsChecked("chkQmtAnnotLay"));
    // The tolerance is stored as the spinner holds it, in meters.
    EXPECT_EQ(Spinner("spinGenBox").GetValue(), 1.0);
    EXPECT_TRUE(KivUserHand::Type(Spinner("spinGenBox"), "5 mm"));
    EXPECT_EQ(Stored("DrwGenerationForBoxTol", 0.0), 0.005);
    EXPECT_TRUE(KivUserHand::Tick(Check("checkGenBox")));
    EXPECT_FALSE(IsEnabled("spinGenBox"));
}

TEST_F(ViewPage, SmallWindowsStoreWhatTheyShowHoweverTheyAreClosed)
{
    for (const bool byButton : {true, false}) {
        const auto close = [&](const char* name) {
            KivDlgDialog& window = *Windows(name).back();
            EXPECT_TRUE(byButton ? KivUserHand::Close(window) : KivUserHand::CloseWindow(window));
            EXPECT_FALSE(KivUserHand::Close(window)) << "it is going";
            KivCommand::DrainDelayedDestruction();
        };
        OpenOn("int DrwGenFilConfigure = 7\nint DrwProject3DSymbol = 0\nint DrwProject3DPts = 1\n"
               "int GenWireFrame = 1\nint GenWireFrameMod = 2\n");
        EXPECT_TRUE(Press("pushGenFil"));
        for (const char* radio : {"radioBoundaries", "radioSymbo", "radioOrigEd", "radioProjEd"})
            EXPECT_FALSE(IsChosen(radio));
        close("panelGenFilTitle");
        EXPECT_EQ(Stored("DrwGenFilConfigure", 0), 7);
        EXPECT_TRUE(Press("pushGenFil"));
        // Created in another order than they are numbered.
        const KivDlgRadioButton& first = Radio("radioBoundaries");
        EXPECT_EQ(first.GetParentDialog()->Children()[2]->KivCommand::GetName(), "radioProjEd");
        EXPECT_EQ(first.Choices()[2]->KivCommand::GetName(), "radioOrigEd") << "but read in their order";
        EXPECT_TRUE(KivUserHand::Choose(Radio("radioProjEd")));
        EXPECT_EQ(Stored("DrwGenFilConfigure", 0), 7) << "not before it is closed";
        close("panelGenFilTitle");
        EXPECT_EQ(Stored("DrwGenFilConfigure", 0), 4);

        EXPECT_TRUE(Press("project3DPtsPushButton"));
        auto& symbols = Node<KivComboSymbol>("comboSymbol");
        EXPECT_TRUE(IsChosen("radioSymbolInherit") && !symbols.IsEnabled());
        EXPECT_TRUE(KivUserHand::Choose(Radio("radioSymbol")));
        EXPECT_TRUE(symbols.IsEnabled());
        EXPECT_TRUE(KivUserHand::Choose(symbols, 4));
        close("panelProject3DPtsTitle");
        EXPECT_EQ(Stored("DrwProject3DSymbol", 0), 5);
        EXPECT_TRUE(Press("project3DPtsPushButton"));
        EXPECT_EQ(Node<KivComboSymbol>("comboSymbol").GetSelect(), 5U);
        EXPECT_TRUE(KivUserHand::Choose(Radio("radioSymbolInherit")));
        close("panelProject3DPtsTitle");
        EXPECT_EQ(Stored("DrwProject3DSymbol", 9), 0);

        // Culled wireframe is shown hidden, but what was stored is written back.
        EXPECT_TRUE(KivUserHand::Tick(Check("chkOcclusionCulling")));
        EXPECT_TRUE(Press("pushGenWireFrameMod"));
        EXPECT_TRUE(IsChosen("radioHidden"));
        EXPECT_FALSE(KivUserHand::Choose(Radio("radioVisible")));
        EXPECT_FALSE(Radio("radioVisible").WhyDisabled().IsEmpty());
        close("panelWireFrameMod");
        EXPECT_EQ(Stored("GenWireFrameMod", 0), 2);
        session->Cancel();
        EXPECT_EQ(Stored("DrwGenFilConfigure", 0), 7) << "Cancel takes back what a window stored";
        EXPECT_EQ(Stored("DrwOcclusionCulling", 0), 0);
    }
}

TEST_F(ViewPage, AQualityFixesTheResolutionUnlessItIsTheUsersOwn)
{
    OpenOn("int DrwGenerationModeVal = 2\n");
    EXPECT_TRUE(Press("pushRasterOptions"));
    const double base = 50.8 / static_cast<double>(0.7F) * 0.25;
    const auto& picture = Node<KivDialog>("lblRasterModImage");
    const auto icon = [&] { return std::string(picture.Children().back()->GetIconName().View()); };
    EXPECT_EQ(icon(), "I_HiddenLineDynamic");
    EXPECT_TRUE(KivUserHand::Choose(Combo("combRasterMod"), 2));
    EXPECT_EQ(icon(), "I_ShadingWithEdges");
    KivDlgSpinner& paper = Spinner("spinLODPrint");
    for (const auto& [line, resolution] : {std::pair(0, base), {2, base * 16.0}, {1, base * 4.0}}) {
        EXPECT_TRUE(KivUserHand::Choose(Combo("combLODPrint"), line));
        EXPECT_EQ(paper.GetValue(), resolution);
        EXPECT_FALSE(paper.IsEnabled());
        EXPECT_FALSE(paper.WhyDisabled().IsEmpty());
    }
    EXPECT_TRUE(KivUserHand::Choose(Combo("combLODPrint"), 3));
    EXPECT_EQ(paper.GetValue(), 300.0);
    for (const char* wrong : {"0", "1201", "-5", "150.9"})
        EXPECT_FALSE(KivUserHand::Type(paper, wrong)) << wrong;
    paper.SetValue(150.9, 1);
    EXPECT_EQ(paper.GetValue(), 150.0);
    EXPECT_TRUE(KivUserHand::Choose(Combo("combLODPrint"), 1));
    EXPECT_FALSE(Spinner("spinLODVisu").IsEnabled());
    CloseAll("panelRasterView");
    for (const auto& [key, value] : {std::pair("KivDrwRasterMod", 2),
                                     {"DrwDefVisuPicture", 91},
                                     {"DrwDefPrintPicture", 150},
                                     {"KivDrwLODVisuMod", 1},
                                     {"KivDrwLODPrintMod", 1}})
        EXPECT_EQ(Stored(key, -1), value) << key;
    OpenOn("int DrwGenerationModeVal = 2\nint KivDrwRasterMod = 9\nint KivDrwLODVisuMod = -3\n");
    EXPECT_TRUE(Press("pushRasterOptions"));
    EXPECT_EQ(Spinner("spinLODVisu").GetValue(), base) << "an unknown quality is the lowest";
    CloseAll("panelRasterView");
    EXPECT_EQ(Stored("KivDrwRasterMod", 0), 9);
}

TEST_F(ViewPage, FieldAndCursorShowTheSameLevel)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "# kivsettings 1\n");
    OpenOn("int DrwGenerationModeVal = 3\n");
    EXPECT_TRUE(Press("pushRasterOptions"));
    auto& graph = Node<Kiv2DViewer>("viewerHRVLOD");
    const auto expect = [&](int level, double x, double y) {
        EXPECT_EQ(Spinner("spinHRVLOD").GetValue(), level);
        EXPECT_NEAR(graph.GetActiveManipulator()->GetOrigin().x, x, 1e-9);
        EXPECT_NEAR(graph.GetActiveManipulator()->GetOrigin().y, y, 0.005);
        EXPECT_EQ(graph.GetValue().current, level);
    };
    expect(4, 20.0, 14.62);
    const struct {
        double x;
        int level;
    } drags[] = {{12.0, 2}, {13.0, 3}, {-40.0, 1}, {78.0, 15}, {1e300, 15}, {-1e300, 1}, {37.4, 7}};
    for (const auto& [x, level] : drags) {
        EXPECT_TRUE(KivUserHand::Drag(graph, x, -3.0));
        expect(level, 5.0 * level, 10.0 + 13.0 / 1125.0 * 25.0 * level * level);
    }
    for (const double nowhere : {std::nan(""), -HUGE_VAL}) {
        EXPECT_FALSE(KivUserHand::Drag(graph, nowhere, 3.0).why.IsEmpty());
        EXPECT_FALSE(KivUserHand::Drag(graph, 30.0, nowhere));
    }
    EXPECT_FALSE(KivUserHand::Enter(graph, std::nan("")));
    EXPECT_TRUE(KivUserHand::Step(graph, -3));
    expect(4, 20.0, 14.62);
    EXPECT_TRUE(KivUserHand::Type(Spinner("spinHRVLOD"), "15"));
    expect(15, 75.0, 75.0);
    EXPECT_TRUE(KivUserHand::Step(graph, 9));
    expect(15, 75.0, 75.0);
    CloseAll("panelRasterView");
    EXPECT_EQ(Stored("KivDrwHRVLOD", 0), 15);

    EXPECT_TRUE(Press("pushRasterOptions"));
    box.Write(box.File("site"), "lock int KivDrwHRVLOD = 6\n");
    Repository().Refresh();
    session->Refill();
    EXPECT_EQ(Spinner("spinHRVLOD").GetValue(), 6.0) << "a lock that arrives while the window is open";
    EXPECT_FALSE(KivUserHand::Drag(Node<Kiv2DViewer>("viewerHRVLOD"), 12.0, 10.0));
    EXPECT_FALSE(Node<Kiv2DViewer>("viewerHRVLOD").WhyDisabled().IsEmpty());
}

TEST_F(ViewPage, WindowsMayBeOpenTwiceAndLeftOpen)
{
    OpenOn("int DrwProject3DPts = 1\nint GenWireFrame = 1\nint DrwGenerationModeVal = 0\n");
    const char* const buttons[] = {"pushGenFil", "project3DPtsPushButton", "pushGenWireFrameMod",
                                   "linetypePushButton"};
    const auto openAll = [&] {
        for (const char* button : buttons) {
            EXPECT_TRUE(Press(button));
            EXPECT_TRUE(Press(button));
        }
    };
    openAll();
    ASSERT_EQ(Windows("panelGenFilTitle").size(), 2U);
    const auto choose = [&](std::size_t window, const char* radio) {
        EXPECT_TRUE(KivUserHand::Choose(
            *static_cast<KivDlgRadioButton*>(Windows("panelGenFilTitle")[window]->FindDialog(radio))));
    };
    choose(0, "radioSymbo");
    choose(1, "radioOrigEd");
    EXPECT_TRUE(KivUserHand::Close(*Windows("panelGenFilTitle")[1]));
    KivCommand::DrainDelayedDestruction();
    EXPECT_EQ(Stored("DrwGenFilConfigure", 0), 3);
    const int off = 0;
    Repository().WriteSetting("DrwExactPreview", &off, 1, 0);
    session->Refill();
    EXPECT_TRUE(IsChecked("chkExactPreview")) << "filling would take the other window's choice from the user";
    EXPECT_TRUE(session->Commit().empty());
    KivCommand::DrainDelayedDestruction();
    session->RefillWaiting();
    EXPECT_FALSE(IsChecked("chkExactPreview"));
    EXPECT_NE(box.Bytes(file).find("int DrwGenFilConfigure = 2\n"), std::string::npos)
        << "OK stores what the window that was left open shows";
    EXPECT_TRUE(Windows("panelGenFilTitle").empty());

    const std::string bytes = box.Bytes(file);
    openAll();
    choose(0, "radioOrigEd");
    session->Reset(Page("View"));
    EXPECT_EQ(Windows("panelGenFilTitle").size(), 2U) << "a reset fills the windows that are open";
    EXPECT_TRUE(IsChosen("radioBoundaries"));
    choose(1, "radioProjEd");
    session->Cancel();
    KivCommand::DrainDelayedDestruction();
    EXPECT_EQ(box.Bytes(file), bytes);
    EXPECT_EQ(Stored("DrwGenFilConfigure", 0), 2);
    EXPECT_EQ(Stored("DrwProject3DPts", 0), 1);
    openAll(); // and left open when the options go
}

} // namespace

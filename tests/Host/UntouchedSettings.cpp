#include "OptionsPages.h"

namespace {

// Pages and windows that store all that they show take nothing for the user's but what he changed.
class UntouchedSettings : public OptionsPages {
protected:
    // One change on each page and in the window of line types, each of which stores many settings.
    void ChangeOneOfEach()
    {
        EXPECT_TRUE(KivUserHand::Tick(Check("chkQmtAnnotLay")));
        EXPECT_TRUE(KivUserHand::Tick(Check("checkGenBalloonByInstance")));
        EXPECT_TRUE(Press("linetypePushButton"));
        EXPECT_TRUE(KivUserHand::Choose(Combo("comboBreakoutThickness"), 5));
        CloseWindow("LineTypeWnd");
        EXPECT_TRUE(Press("project3DPtsPushButton"));
        CloseWindow("panelProject3DPtsTitle");
    }
    void CloseWindow(const char* name)
    {
        EXPECT_TRUE(KivUserHand::Close(Node<KivDlgDialog>(name)));
        KivCommand::DrainDelayedDestruction();
    }
    // The keys that the user's file states as his own choice.
    std::string Chosen()
    {
        EXPECT_TRUE(session->Commit().empty());
        std::istringstream lines(box.Bytes(file));
        std::string chosen;
        for (std::string type, key, rest; lines >> type && std::getline(lines, rest);) {
            std::istringstream(rest) >> key;
            if (type != "#" && type != "initial" && type != "version") chosen += key + " ";
        }
        return chosen;
    }
};

TEST_F(UntouchedSettings, StayTheFirstStartsSoThatASiteDefaultStillArrives)
{
    const std::string view = "initial int GenAxisCreate = 0\ninitial int GenWireFrame = 0\n"
                             "initial int DrwProject3DPts = 1\ninitial double DrwGenerationForBoxTol = 1\n";
    OpenOn(view + "initial int GenDim = 0\ninitial int GenDimSemiAutoTimeOut = 2\n"
                  "initial unsigned SectionLinetype = 4\ninitial unsigned DrwBreakoutThickness = 2\n");
    ChangeOneOfEach();
    // Also the keys of which no layer said anything are there now, chosen by nobody.
    EXPECT_EQ(Stored("GenDimAnal", -1), 1);
    EXPECT_EQ(Stored("GenFilCreate", -1), 1);
    EXPECT_EQ(Chosen(), "DrwBreakoutThickness KivDrwQmtAnnotLay GenBalloonByInstance ");
    box.NameLayers({"site"});
    box.Write(box.File("site"), "int GenDim = 1\nunsigned SectionLinetype = 3\nint GenFilCreate = 0\n");
    Open();
    EXPECT_TRUE(IsChecked("checkGenDim"));
    EXPECT_FALSE(IsChecked("_checkGenFil"));
    // What is in force already is the administrator's, too.
    ChangeOneOfEach();
    EXPECT_EQ(Chosen(), "DrwBreakoutThickness KivDrwQmtAnnotLay GenBalloonByInstance ");
}

TEST_F(UntouchedSettings, ThatNoControlCanShowStayUntilAnotherIsChosen)
{
    const std::string strange =
        "unsigned SkinLinetype = 77\nunsigned DrwSkinThickness = 9\nint DrwProject3DSymbol = 10\n"
        "int DimBrokenR = 300\nint KivDrwDimClipNoShow = 2\nint KivDrwSelBodyInAss = 3\nint Gen3DColors = 5\n"
        "int GenDimSemiAutoTimeOut = 500\nint DrwProject3DPts = 1\nint DrwExactPreview = -1\n"
        "double GenDim = 1\n";
    OpenOn(strange);
    Values before = All();
    ChangeOneOfEach();
    Values after = All();
    for (const auto& [key, value] : before) EXPECT_EQ(after[key], value) << key;

    // Nothing is shown as chosen, so that the first entry can be, too.
    EXPECT_EQ(Color("comboDimBroken").KivDlgCombo::GetSelect(), -1);
    EXPECT_TRUE(KivUserHand::Choose(Color("comboDimBroken"), 0));
    EXPECT_EQ(Stored("DimBrokenR", -1), 0);
    EXPECT_TRUE(Press("linetypePushButton"));
    EXPECT_TRUE(Press("project3DPtsPushButton"));
    auto& symbols = Node<KivDlgCombo>("comboSymbol");
    for (KivDlgCombo* combo : {&Combo("comboSkinLinetype"), &Combo("comboSkinThickness"), &symbols}) {
        EXPECT_EQ(combo->GetSelect(), -1);
        EXPECT_NE(combo->GetTip().View().find("not among the choices"), std::string_view::npos);
        EXPECT_TRUE(KivUserHand::Choose(*combo, 0));
    }
    // Who turns to the inherited symbol and back has a symbol to choose.
    CloseWindow("LineTypeWnd");
    CloseWindow("panelProject3DPtsTitle");
    EXPECT_EQ(Stored("SkinLinetype", 0U), 1U);
    EXPECT_EQ(Stored("DrwSkinThickness", 9U), 0U);
    EXPECT_EQ(Stored("DrwProject3DSymbol", 9), 1);
}

TEST_F(UntouchedSettings, ShowWhatIsInForceAfterAStore)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "lock int DimBrokenG = 77\n");
    OpenOn("");
    EXPECT_TRUE(KivUserHand::ChooseColor(Color("comboDimBroken"), 200, 201, 202));
    unsigned int red = 0, green = 0, blue = 0;
    Color("comboDimBroken").GetSelectedColor(&red, &green, &blue);
    EXPECT_TRUE(red == 200 && green == 77 && blue == 202) << red << " " << green << " " << blue;

    // Locks that have come since the pages were filled.
    box.Write(box.File("site"), "lock int GenDim = 0\nlock int GenFilCreate = 1\nlock int Ruler = 1\n");
    Repository().Refresh();
    EXPECT_TRUE(KivUserHand::Tick(Check("checkGenDim")));
    EXPECT_TRUE(KivUserHand::Tick(Check("_checkGenFil")));
    EXPECT_TRUE(KivUserHand::Tick(Check("checkRuler")));
    EXPECT_TRUE(!IsChecked("checkGenDim") && IsChecked("_checkGenFil") && IsChecked("checkRuler"));
    for (const char* row : {"checkGenDim", "_checkGenFil", "checkRuler"})
        EXPECT_FALSE(Check(row).IsEnabled()) << row;
}

TEST_F(UntouchedSettings, FollowWhatIsStoredElsewhereMeanwhile)
{
    OpenOn("initial int Ruler = 0\nint DrwProject3DPts = 1\n");
    EXPECT_TRUE(Press("linetypePushButton"));
    const unsigned int elsewhere = 2;
    EXPECT_EQ(Repository().WriteSetting("SectionLinetype", &elsewhere, 1, 0), S_OK);
    EXPECT_TRUE(KivUserHand::Choose(Combo("comboBreakoutThickness"), 5));
    CloseWindow("LineTypeWnd");
    EXPECT_EQ(Stored("SectionLinetype", 0U), 2U);
    // A page asks for what a site has given by then: that stays the site's.
    box.NameLayers({"site"});
    box.Write(box.File("site"), "int Ruler = 1\n");
    session->Commit();
    KivSettingRepository::ForgetAll();
    EXPECT_TRUE(KivUserHand::Tick(Check("checkRuler")));
    KivSettingInfo info;
    Repository().GetInfo("Ruler", &info, 0);
    EXPECT_EQ(info.origin, KivSettingInfo::Origin::Administrator);
}

TEST_F(UntouchedSettings, OfControlsThatAreGoneAreNotWritten)
{
    OpenOn("int DrwProject3DPts = 1\n");
    for (const char* row : {"checkGenDimFilter", "_checkGenAxis"}) delete Find(row);
    ChangeOneOfEach();
    EXPECT_EQ(Stored("GenDimFilter", -1), -1);
    EXPECT_EQ(Stored("GenAxisCreate", -1), -1);
    EXPECT_EQ(Stored("GenCenterCreate", -1), 0);
}

} // namespace

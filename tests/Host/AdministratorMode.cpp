#include "Dialog/KivDlgView.h"
#include "OptionsPages.h"

namespace {

// The General page on an administrator's layer.
class AdministratorMode : public OptionsPages {
protected:
    void SetUp() override
    {
        file = box.File("site");
        box.NameLayers({"company", "site"});
        box.Write(box.File("company"), "lock int Ruler = 1\nlock float BackgroundColorGreenDitto = 1\n");
        box.Write(file, "# ours\nlock double RotSnapAngle = 45\nlock View*\n");
    }
    void Edit(const char* layer)
    {
        session.reset();
        KivSettingRepository::SetEditedLayer(KivUnicodeString((box.root / layer).string()));
        Open();
    }
    KivDlgLock& Lock(const std::string& row) { return Node<KivDlgLock>(row + "Lock"); }
    bool IsEnabled(const std::string& row) { return Control(row).IsEnabled(); }
};

TEST_F(AdministratorMode, PadlocksAreSwitchesThatOkSaves)
{
    Edit("site");
    EXPECT_TRUE(Lock("spinnerRotSnapAngle").IsClosed() && Lock("spinnerRotSnapAngle").IsSwitch());
    EXPECT_TRUE(IsEnabled("spinnerRotSnapAngle")) << "whoever edits the layer changes what it locks";
    EXPECT_TRUE(KivUserHand::Press(Lock("spinnerRotSnapAngle")));
    EXPECT_FALSE(Lock("spinnerRotSnapAngle").IsClosed());
    EXPECT_TRUE(KivUserHand::Press(Lock("checkSnap")));
    EXPECT_TRUE(Lock("checkSnap").IsClosed());
    EXPECT_TRUE(IsEnabled("checkSnap"));
    EXPECT_TRUE(KivUserHand::Press(Lock("comboBackgroundColor")));
    EXPECT_TRUE(KivUserHand::Press(Lock("editorGridSpacingV"))) << "also where the page disables the field";

    for (const char* row : {"checkRuler", "checkViewReferential"}) {
        const KivHandAnswer answer = KivUserHand::Press(Lock(row));
        EXPECT_FALSE(answer) << row;
        EXPECT_FALSE(answer.why.IsEmpty());
        EXPECT_TRUE(Lock(row).IsClosed());
    }
    EXPECT_FALSE(IsEnabled("checkRuler"));
    EXPECT_TRUE(IsEnabled("checkViewReferential"));
    ASSERT_TRUE(session->Commit().empty());
    EXPECT_EQ(box.Saved(file),
              "# ours\ndouble RotSnapAngle = 45\nlock View*\nlock Drw_settings_GridSnapPt\n"
              "lock BackgroundColorRed\nlock BackgroundColorGreen\nlock BackgroundColorBlue\n"
              "lock Drw_settings_GridVPrimarySpacing\n");

    // A user of the layer meets what was locked, and no switch.
    session.reset();
    KivSettingRepository::SetEditedLayer({});
    Open();
    EXPECT_FALSE(IsEnabled("checkSnap") || IsEnabled("comboBackgroundColor") ||
                 IsEnabled("checkViewReferential"));
    EXPECT_TRUE(IsEnabled("spinnerRotSnapAngle"));
    for (const char* row : {"checkSnap", "spinnerRotSnapAngle"}) {
        EXPECT_FALSE(KivUserHand::Press(Lock(row)));
        EXPECT_FALSE(Lock(row).IsSwitch());
    }
    EXPECT_TRUE(Lock("checkSnap").IsClosed());

    Edit("site");
    EXPECT_TRUE(KivUserHand::Press(Lock("comboBackgroundColor")));
    ASSERT_TRUE(session->Commit().empty());
    EXPECT_EQ(box.Bytes(file).find("lock BackgroundColor"), std::string::npos) << "all three are open again";
}

TEST_F(AdministratorMode, CancelTakesLocksBackAndPadlocksShowIt)
{
    Edit("site");
    const std::string bytes = box.Bytes(file);
    for (const char* row : {"spinnerRotSnapAngle", "checkSnap", "comboBackgroundColorDD"})
        ASSERT_TRUE(KivUserHand::Press(Lock(row))) << row;
    session->Cancel();
    EXPECT_TRUE(Lock("spinnerRotSnapAngle").IsClosed());
    EXPECT_FALSE(Lock("checkSnap").IsClosed());
    EXPECT_FALSE(Lock("comboBackgroundColorDD").IsClosed());
    ASSERT_TRUE(session->Commit().empty());
    EXPECT_EQ(box.Bytes(file), bytes);
    // After a cancel the companions still go along.
    ASSERT_TRUE(KivUserHand::Press(Lock("comboBackgroundColorDD")));
    ASSERT_TRUE(session->Commit().empty());
    EXPECT_EQ(box.Saved(file), bytes + "lock BackgroundColorRedDitto\nlock BackgroundColorBlueDitto\n");
}

// A lock alone would go on binding users, at another value than the one that was locked.
TEST_F(AdministratorMode, ResetRemovesFromTheLayerWhatItSaysOfThePage)
{
    box.Write(file, "# ours\nlock double RotSnapAngle = 45\nlock Drw_settings_GridSnapPt\nlock View*\n"
                    "lock int DrwAnnotSnapMod = 1\n");
    Edit("site");
    EXPECT_TRUE(Lock("spinnerRotSnapAngle").IsSetHere());
    EXPECT_TRUE(Lock("spinnerRotSnapAngle").GetReason().View().starts_with("Locked at 45° for the users"));
    EXPECT_EQ(Lock("spinnerRotSnapAngle").GetSpokenName(),
              "Lock “Rotation snap angle” for users, set in this layer");
    session->Reset(Page("General"));
    for (const char* row : {"spinnerRotSnapAngle", "checkSnap"})
        EXPECT_FALSE(Lock(row).IsClosed() || Lock(row).IsSetHere()) << row;
    ASSERT_TRUE(session->Commit().empty());
    EXPECT_EQ(box.Saved(file), "# ours\nlock View*\nlock int DrwAnnotSnapMod = 1\n");
}

// What a page has no use for at the moment may still have to be locked.
TEST_F(AdministratorMode, EveryWindowOpensForLocking)
{
    const char* const buttons[] = {"pushGenFil", "project3DPtsPushButton", "linetypePushButton"};
    box.Write(file, "int DrwPreventGVS = 0\n");
    Open();
    for (const char* button : buttons) EXPECT_FALSE(Press(button)) << button;
    Edit("site");
    for (const char* button : buttons) EXPECT_TRUE(Press(button)) << button;
    ASSERT_TRUE(KivUserHand::Press(Lock("frameRadioGenFil")));
    ASSERT_TRUE(session->Commit().empty());
    EXPECT_NE(box.Saved(file).find("lock DrwGenFilConfigure\n"), std::string::npos) << box.Saved(file);
}

// As the command line takes it, whatever the row calls it and in which unit.
TEST_F(AdministratorMode, RowsTellTheirKeysAndTheCommandThatSetsThem)
{
    box.Write(file, "string DrwFrameAndTitleBlockPath = \"/a b/it's\"\n");
    Open();
    EXPECT_EQ(Control("editorGridSpacing").GetFacts(),
              "Key Drw_settings_GridPrimarySpacing, default 100, 0 to 1e+15 (length in millimeters)");
    EXPECT_EQ(Control("editorGridSpacing").GetCommand(),
              "kivsettings set Drw_settings_GridPrimarySpacing=100");
    EXPECT_EQ(Control("editorTitleBlockPath").GetCommand(),
              "kivsettings set 'DrwFrameAndTitleBlockPath=/a b/it'\\''s'");
    EXPECT_EQ(Control("comboBackgroundColorDD").GetCommand(),
              "kivsettings set BackgroundColorRedDitto=1 BackgroundColorGreenDitto=1 "
              "BackgroundColorBlueDitto=1");
    Edit("site");
    EXPECT_TRUE(Control("checkGrid").GetCommand().View().starts_with("kivsettings set --layer "));
}

// Each with the setting's title and the value that the row shows, by which it is in force.
TEST_F(AdministratorMode, PadlocksNameTheirSettingAndTheValueInForce)
{
    // What the company gives is of a type that nobody reads.
    box.Write(box.File("company"), "lock int Ruler = 1\nint RotSnapAngle = 30\n");
    box.Write(file, "lock double Drw_settings_GridPrimarySpacing = 25\nlock RotSnapAngle\n"
                    "lock float BackgroundColorRed = 0\nlock float BackgroundColorGreen = 1\n"
                    "lock float BackgroundColorBlue = 1\nlock int DrwAnnotSnapMod = 1\n"
                    "lock string DrwFrameAndTitleBlockPath = \"\"\n");
    Open();
    const auto starts = [](const KivUnicodeString& text, const std::string& start) {
        EXPECT_EQ(text.View().substr(0, start.size()), start) << text.View();
    };
    EXPECT_EQ(Lock("checkRuler").GetSpokenName(), "Show ruler, locked by the administrator");
    EXPECT_EQ(Lock("checkGrid").GetSpokenName(), "Display grid, not locked");
    const std::string by = "Locked by the administrator at ";
    starts(Lock("checkRuler").GetTip(), "Show ruler: " + by + "On in layer \"company\" (");
    starts(Lock("editorGridSpacing").GetReason(), by + "25 mm in ");
    EXPECT_EQ(Lock("spinnerRotSnapAngle").GetReason(),
              (by + "15° in layer \"site\" (" + file.string() + ", line 2).").c_str());
    starts(Lock("comboBackgroundColor").GetReason(), by + "Cyan in ");
    starts(Lock("editorTitleBlockPath").GetReason(), by + "an empty text in ");
    EXPECT_EQ(Lock("spinnerRotSnapAngle").GetReport(),
              "Rotation snap angle: " + Lock("spinnerRotSnapAngle").GetReason() +
                  "\nKey RotSnapAngle, default 15, 1 to 355 (angle in degrees)");
    EXPECT_EQ(Control("editorGridSpacing").GetTip(), Lock("editorGridSpacing").GetReason());
    ASSERT_TRUE(Press("pushAnnotActiveSnap"));
    EXPECT_EQ(Node<KivDialog>("frameRadioAnnotActivSnaplocked").GetShownValue(),
              "Orientation of their reference");
}

// The red key's lock governs a color, but nobody is left without a word on the other two.
TEST_F(AdministratorMode, APartlyLockedColorSaysWhichPartAndIsOpenedAtOnce)
{
    box.Write(file, "lock float BackgroundColorGreen = 1\nlock BackgroundColorRedDitto\n");
    Open();
    EXPECT_TRUE(IsEnabled("comboBackgroundColor"));
    EXPECT_TRUE(Lock("comboBackgroundColorDD").IsClosed() && !IsEnabled("comboBackgroundColorDD"));
    const std::string two(Lock("comboBackgroundColorDD").GetReason().View());
    EXPECT_LT(two.find("Red is fixed at 255 by the administrator in layer \"site\""),
              two.find("Green is fixed"));
    EXPECT_NE(two.find("company"), std::string::npos) << two;
    const std::string fixed =
        "Green is fixed at 255 by the administrator in layer \"site\" (" + file.string() + ", line 1).";
    for (const KivUnicodeString& said :
         {Lock("comboBackgroundColor").GetTip(), Control("comboBackgroundColor").GetTip(),
          Lock("comboBackgroundColor").GetReport()})
        EXPECT_NE(said.View().find(fixed), std::string::npos) << said.View();
    EXPECT_EQ(Lock("comboBackgroundColor").GetSpokenName(),
              "Sheet background, partly locked by the administrator");

    box.Write(file, "lock float BackgroundColorGreen = 1\nlock BackgroundColorBlue\n");
    Edit("site");
    EXPECT_TRUE(Lock("comboBackgroundColor").IsPartlyClosed());
    EXPECT_TRUE(KivUserHand::Press(Lock("comboBackgroundColor")));
    EXPECT_FALSE(Lock("comboBackgroundColor").IsPartlyClosed() || Lock("comboBackgroundColor").IsClosed());
    ASSERT_TRUE(session->Commit().empty());
    EXPECT_EQ(box.Bytes(file).find("lock"), std::string::npos) << box.Bytes(file);
    EXPECT_TRUE(KivUserHand::Press(Lock("comboBackgroundColor")));
    EXPECT_TRUE(Lock("comboBackgroundColor").IsClosed());
}

// What a padlock said when its view was last told to look.
class Heard : public KivDlgView {
public:
    explicit Heard(KivDlgLock& lock) : _lock(lock), said(lock.GetReason()) { lock.SetView(this); }
    ~Heard() { _lock.SetView(nullptr); }
    void NodeChanged(KivDialog&) override { said = _lock.GetReason(); }
    void NodeDestroyed(KivDialog&) override {}

private:
    KivDlgLock& _lock;

public:
    KivUnicodeString said;
};

// Also in a window, which stores what was chosen only when it is closed.
TEST_F(AdministratorMode, APadlockFollowsEveryChangeAtOnce)
{
    box.Write(box.File("user"), "initial int Drw_settings_GridDisplay = 0\nint DrwGenerationModeVal = 3\n"
                                "initial int KivDrwHRVLOD = 4\n");
    Open();
    ASSERT_TRUE(Press("pushRasterOptions"));
    for (const char* row : {"checkGrid", "spinHRVLOD"}) {
        const Heard heard(Lock(row));
        EXPECT_EQ(heard.said, "As it was at the first start.") << row;
        ASSERT_TRUE(Drive(Control(row))) << row;
        EXPECT_EQ(heard.said, "Set by you.") << row;
    }
    box.Write(file, "lock double Drw_settings_GridPrimarySpacing = 50\n");
    Edit("site");
    const Heard heard(Lock("editorGridSpacing"));
    EXPECT_EQ(heard.said.View().substr(0, 16), "Locked at 50 mm ");
    ASSERT_TRUE(KivUserHand::Type(Spinner("editorGridSpacing"), "60"));
    EXPECT_EQ(heard.said.View().substr(0, 16), "Locked at 60 mm ");
}

} // namespace

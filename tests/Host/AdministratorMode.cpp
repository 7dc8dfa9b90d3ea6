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
    EXPECT_EQ(box.Bytes(file),
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
    EXPECT_EQ(box.Bytes(file), bytes + "lock BackgroundColorRedDitto\nlock BackgroundColorBlueDitto\n");
}

} // namespace

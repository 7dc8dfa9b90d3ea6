#include "OptionsPages.h"

namespace {

using GeneralPage = OptionsPages;

TEST_F(GeneralPage, VerticalFieldsFollowUntilDistortionsAreAllowed)
{
    Open();
    EXPECT_TRUE(KivUserHand::Type(Spinner("editorGridSpacing"), "20"));
    EXPECT_TRUE(KivUserHand::Type(Spinner("editorGridGraduation"), "2.7"));
    EXPECT_EQ(Spinner("editorGridSpacingV").GetValue(), 0.02);
    EXPECT_EQ(Stored("Drw_settings_GridVPrimarySpacing", 0.0), 20.0);
    EXPECT_EQ(Stored("Drw_settings_GridSecondaryStep", 0), 2);
    EXPECT_EQ(Spinner("editorGridGraduation").GetValue(), 2.0);
    EXPECT_EQ(Spinner("editorGridGraduationV").GetValue(), 2.0);

    EXPECT_TRUE(KivUserHand::Tick(Check("checkAllowDistortions")));
    EXPECT_TRUE(KivUserHand::Type(Spinner("editorGridSpacing"), "30"));
    EXPECT_EQ(Stored("Drw_settings_GridVPrimarySpacing", 0.0), 20.0);
    EXPECT_TRUE(KivUserHand::Turn(Spinner("editorGridGraduation"), 1));
    EXPECT_EQ(Stored("Drw_settings_GridSecondaryStep", 0), 3);

    // Mirrored into a locked field the spacing is neither stored nor shown.
    box.NameLayers({"site"});
    box.Write(box.File("site"), "lock double Drw_settings_GridVPrimarySpacing = 5\n");
    Open();
    EXPECT_TRUE(KivUserHand::Type(Spinner("editorGridSpacing"), "20"));
    EXPECT_EQ(Spinner("editorGridSpacingV").GetValue(), 0.005);
}

TEST_F(GeneralPage, BackgroundsAreStoredAsFractionsAndReadBackCut)
{
    Open();
    EXPECT_TRUE(KivUserHand::ChooseColor(Color("comboBackgroundColor"), 128, 128, 128));
    EXPECT_EQ(Stored("BackgroundColorBlue", 0.0F), static_cast<float>(128 / 255.0));
    EXPECT_TRUE(session->Commit().empty());
    Open();
    unsigned int r = 1, g = 1, b = 1;
    Color("comboBackgroundColor").GetSelectedColor(&r, &g, &b);
    EXPECT_EQ(r + g + b, 0U);
    EXPECT_TRUE(KivUserHand::ChooseColor(Color("comboBackgroundColor"), 255, 255, 255));
    EXPECT_TRUE(session->Commit().empty());
    Open();
    Color("comboBackgroundColor").GetSelectedColor(&r, &g, &b);
    EXPECT_EQ(r & g & b, 255U);
}

} // namespace

#include "Base/KivTextCatalogue.h"
#include "Dialog/KivDlgFrame.h"
#include "Settings/KivSettingInfo.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

namespace {

class TextCatalogues : public testing::Test {
protected:
    void SetUp() override
    {
        box.Write(
            box.root / "Module/texts/English/Test.texts",
            "# comment\n\ncheck.Title = \"&Show && tell\"\n check.Help=\"Two\\nlines, \\\"quoted\\\"\"\r\n");
        box.Write(box.root / "Module/texts/Deutsch/Test.texts",
                  "check.Title = \"&Zeigen\"\nno text at all\nbad = \"open\nbad = \"in\"side\"\n");
        KivTextCatalogue::SetResourceRoot(KivUnicodeString(box.root.string()));
    }
    void TearDown() override
    {
        KivTextCatalogue::SetLanguage("English");
        KivTextCatalogue::SetResourceRoot("");
    }

    KivSettingsSandbox box;
    const std::vector<KivDiagnostic>& said = box.diagnostics;
};

TEST_F(TextCatalogues, ReachTheNodesBelowAndFallBackToEnglishThenToTheName)
{
    KivTextCatalogue::SetLanguage("Deutsch");
    KivDlgFrame page(nullptr, "page");
    page.SetTextCatalogue("Test");
    auto* check = new KivDlgFrame(&page, "check");
    EXPECT_EQ(check->GetTitle(), "&Zeigen");
    EXPECT_EQ(check->GetHelp(), "Two\nlines, \"quoted\"");
    EXPECT_EQ(page.GetTitle(), "page");
    EXPECT_TRUE(page.GetHelp().IsEmpty());
    ASSERT_EQ(said.size(), 3U);
    EXPECT_EQ(said[2].line, 4);

    KivTextCatalogue::SetResourceRoot(KivUnicodeString(box.root.string()));
    KivTextCatalogue::SetLanguage("Klingon");
    page.SetTextCatalogue("Test");
    EXPECT_EQ(check->GetSpokenTitle(), "Show & tell");
}

TEST_F(TextCatalogues, MissingOnesAreSaidOnceAndShowNames)
{
    KivDlgFrame page(nullptr, "checkGrid");
    page.SetTextCatalogue("Nowhere");
    page.SetTextCatalogue("Nowhere");
    EXPECT_EQ(page.GetTitle(), "checkGrid");
    EXPECT_EQ(said.size(), 1U);
    EXPECT_TRUE(KivTextCatalogue::FindResource("icons/none.svg").IsEmpty());
    EXPECT_EQ(KivTextCatalogue::KnownLanguages(),
              (std::set<std::string>{"Deutsch", "English", "Mirrored", "Pseudo"}));
}

TEST_F(TextCatalogues, TakeValuesInAnyOrderAndSettingsSpeakThem)
{
    box.Write(box.root / "Module/texts/Deutsch/KivFramework.texts",
              "Swap = \"%2 vor %1 zu 100%\"\nSettingLockedHereAt = \"%2 (%1)\"\nSettingPlace = \"%2, %1\"\n");
    KivTextCatalogue::SetLanguage("Deutsch");
    EXPECT_EQ(KivTextCatalogue::FrameworkText("Swap", {"%2", "b"}), "b vor %2 zu 100%");
    EXPECT_EQ(KivTextCatalogue::FrameworkText("Missing", {"a", "b"}), "Missing a b");
    KivSettingInfo info;
    info.origin = KivSettingInfo::Origin::Administrator;
    info.lockedHere = true;
    info.value = "5";
    info.lockLayer = "site";
    info.lockFile = "/x";
    EXPECT_EQ(info.Message(), "5 (/x, site)");
}

} // namespace

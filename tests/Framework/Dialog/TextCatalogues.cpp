#include "Base/KivDiagnostic.h"
#include "Dialog/KivDlgFrame.h"
#include "Dialog/KivTextCatalogue.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class TextCatalogues : public testing::Test {
protected:
    void SetUp() override
    {
        Write(
            "English",
            "# comment\n\ncheck.Title = \"&Show && tell\"\n check.Help=\"Two\\nlines, \\\"quoted\\\"\"\r\n");
        Write("Deutsch", "check.Title = \"&Zeigen\"\nno text at all\nbad = \"open\nbad = \"in\"side\"\n");
        KivTextCatalogue::SetResourceRoot(KivUnicodeString(root.string()));
        before = KivSetDiagnosticSink([this](const KivDiagnostic& d) { said.push_back(d); });
    }
    void TearDown() override
    {
        KivSetDiagnosticSink(before);
        KivTextCatalogue::SetLanguage("English");
        KivTextCatalogue::SetResourceRoot("");
        fs::remove_all(root);
    }
    void Write(const char* language, const char* content)
    {
        fs::create_directories(root / "Module/texts" / language);
        std::ofstream(root / "Module/texts" / language / "Test.texts", std::ios::binary) << content;
    }

    fs::path root = fs::temp_directory_path() / ("kiv-texts-" + std::to_string(getpid()));
    std::vector<KivDiagnostic> said;
    KivDiagnosticSink before;
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

    KivTextCatalogue::SetResourceRoot(KivUnicodeString(root.string()));
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
    EXPECT_EQ(KivTextCatalogue::KnownLanguages(), (std::set<std::string>{"Deutsch", "English", "Pseudo"}));
}

} // namespace

#include "KivDrwCatalogue.h"
#include "KivDrwSettingAccess.h"
#include "KivDrwWorkbench.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

namespace {

std::string Written(const KivSettingValue& value)
{
    return std::string(KivSettingTypeName(value)) + " " + KivShownSettingText(value).ConvertToChar();
}

TEST(Catalogue, IsTheOneThatExistingFilesWereWrittenWith)
{
    std::ifstream kept(KIV_TEST_DATA "/Catalogue.txt");
    std::string line;
    for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries()) {
        EXPECT_TRUE(entry.kind.Holds(entry.makeDefault())) << entry.key;
        std::getline(kept, line);
        if (std::string_view(entry.key) == "DrwFrameAndTitleBlockPath") {
            EXPECT_EQ(line, "DrwFrameAndTitleBlockPath string computed");
        } else {
            EXPECT_EQ(line, entry.key + (" " + Written(entry.makeDefault())));
        }
    }
    EXPECT_FALSE(std::getline(kept, line)) << line;
}

TEST(Catalogue, AResetOfTheGeneralPageTakesAnotherKeyAlong)
{
    EXPECT_STREQ(KivDrwCatalogue::ResetKeys(KivDrwGroup::General).back(), "DrwAreaFillTol") << "deliberate";
    EXPECT_EQ(KivDrwCatalogue::Find("DrwExplodeSymbol"), nullptr);
}

class FirstStart : public testing::Test {
protected:
    KivSettingsSandbox box;
    std::filesystem::path file = box.File("user");

    std::size_t Attributes()
    {
        std::size_t attributes = 0;
        char name[256], type[256];
        long count = 0;
        for (int restart = 1; KivDrwRepository()->NextAttribute(name, type, &count, restart) == S_OK;
             restart = 0)
            ++attributes;
        return attributes;
    }
};

TEST_F(FirstStart, PutsEveryKeyOnDiskAndTheSecondChangesNothing)
{
    KivDrwOptionsServices::InitOptionsOnDisk();
    EXPECT_EQ(Attributes(), KivDrwCatalogue::Entries().size());
    EXPECT_EQ(KivDrwRead(KivDrwRepository(), KivDrwKeys::KivDrwQmtAnnotLay), 4);

    const std::string bytes = box.Bytes(file);
    const auto time = std::filesystem::last_write_time(file);
    KivSettingRepository::ForgetAll();
    KivSketcherSettings::SetSketcherSettings(nullptr);
    KivDrwOptionsServices::InitOptionsOnDisk();
    EXPECT_EQ(box.Bytes(file), bytes);
    EXPECT_EQ(std::filesystem::last_write_time(file), time);
    EXPECT_EQ(KivSketcherSettings::GetSketcherSettings(), KivDrwSketcherSettings::GetSketcherSettings());
    EXPECT_TRUE(box.diagnostics.empty());
}

TEST_F(FirstStart, KeepsWhatThereIsAndGathersWithoutWriting)
{
    box.Write(file, "int Ruler = 1\n");
    EXPECT_EQ(ResetAndWriteSettings(0), 1);
    EXPECT_EQ(Attributes(), 1U);
    EXPECT_EQ(ResetAndWriteSettings(1), 1);
    EXPECT_EQ(Attributes(), KivDrwCatalogue::Entries().size());
    int ruler = 0;
    KivDrwRepository()->ReadSetting("Ruler", &ruler, 1);
    EXPECT_EQ(ruler, 1);
    EXPECT_EQ(box.Bytes(file), "int Ruler = 1\n") << "only its caller saves";

    KivSettingRepository::Withhold(true);
    EXPECT_EQ(ResetAndWriteSettings(1), 0);
}

// Another program may store something at any moment before the defaults are on disk.
TEST_F(FirstStart, NeverWinsOverWhatAnotherProgramStored)
{
    // Since the repository was read.
    EXPECT_EQ(Attributes(), 0);
    box.Write(file, "int Ruler = 1\n");
    KivDrwOptionsServices::InitOptionsOnDisk();
    EXPECT_EQ(KivDrwRead(KivDrwRepository(), KivDrwKeys::Ruler), 1);
    EXPECT_EQ(box.Bytes(file), "int Ruler = 1\n");

    // After it was found empty: a user's value, and a first start of its own. What was reset here stays so.
    const std::string mine = "int RotSnapAuto = 1\n";
    const std::string theirs = "int Ruler = 1\ninitial int DrwHideDim = 7\ninitial int ViewFrame = 0\n";
    box.Write(file, mine);
    KivSettingRepository::ForgetAll();
    const char* const key = "RotSnapAuto";
    KivDrwRepository()->ResetToAdminValues(&key, 1);
    bool isBetween = true;
    KivDrwRepository()->AddListener([&](const auto& keys) {
        if (!std::exchange(isBetween, false)) return;
        EXPECT_EQ(keys.size(), KivDrwCatalogue::Entries().size()) << "the commit";
        box.Write(file, mine + theirs);
    });
    KivDrwOptionsServices::InitOptionsOnDisk();
    EXPECT_FALSE(isBetween);
    EXPECT_EQ(KivDrwRead(KivDrwRepository(), KivDrwKeys::Ruler), 1);
    EXPECT_EQ(Attributes(), KivDrwCatalogue::Entries().size() + 1);
    const std::string bytes = box.Saved(file);
    EXPECT_TRUE(bytes.starts_with("initial int RotSnapAuto = 0\n" + theirs)) << bytes;
    EXPECT_NE(bytes.find("initial int ViewName = 1\n"), std::string::npos);
}

TEST(ComputedDefaults, TitleBlocksComeFromTheFirstInstallationThatHasThem)
{
    KivSettingsSandbox box;
    const std::string a = (box.root / "a").string(), b = (box.root / "b").string();
    const std::string tail = "/VBScript/FrameTitleBlock";
    box.SetVariable("KivInstallPath", a + ":" + b);
    EXPECT_EQ(DefaultFrameAndTitleBlockPath(), (b + tail).c_str());
    std::filesystem::create_directories(a + tail);
    EXPECT_EQ(DefaultFrameAndTitleBlockPath(), (a + tail).c_str());
    box.SetVariable("KivInstallPath", "");
    EXPECT_TRUE(DefaultFrameAndTitleBlockPath().IsEmpty());
    box.SetVariable("KivInstallPath", {});
    EXPECT_TRUE(std::filesystem::is_directory(DefaultFrameAndTitleBlockPath().ConvertToChar()))
        << "an installation brings the directory that is its default";
}

TEST(ComputedDefaults, StyleFilesAreLookedForInEveryCollection)
{
    KivSettingsSandbox box;
    const auto s1 = box.root / "s1", s2 = box.root / "s2", s3 = box.root / "s3";
    box.SetVariable("KivCollectionStandard", s1.string() + "::" + s2.string());
    box.SetVariable("KivDefaultCollectionStandard", s3.string());
    KivListOfUnicodeString list;
    list.Append("kept");
    EXPECT_EQ(GetGPSPath(list), S_OK);
    ASSERT_EQ(list.Size(), 4);
    EXPECT_EQ(list[2], (s1 / "generativeparameters").c_str());
    EXPECT_EQ(list[4], (s3 / "generativeparameters").c_str());

    box.SetVariable("KivCollectionStandard", "::");
    box.SetVariable("KivDefaultCollectionStandard", std::nullopt);
    EXPECT_EQ(GetGPSPath(list), E_FAIL);
    EXPECT_EQ(GetGPSList(list), S_OK);
    EXPECT_EQ(list.Size(), 0);
    const KivUnicodeString same("x");
    EXPECT_EQ(CompareStrings(&same, &same), -1);
}

} // namespace

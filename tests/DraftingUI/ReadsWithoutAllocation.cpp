#include "KivDrwSettingAccess.h"
#include "Support/KivSettingsSandbox.h"
#include "Support/KivWatchedMemory.h"

#include <gtest/gtest.h>

namespace {

// Readers are called from drawing code, for every line of a grid.
TEST(Reads, AllocateNothing)
{
    KivSettingsSandbox box;
    box.NameLayers({"site"});
    box.Write(box.File("site"), "lock int Ruler = 1\nlock Dim*\n");
    box.Write(box.File("user"), "double RotSnapAngle = 30\nint Drw_settings_GridPrimarySpacing = 3\n"
                                "string DrwGVSXmlTrel = \"" +
                                    std::string(100, 'x') + "\"\n");
    const KivSettingRepository& repository = *KivDrwRepository();
    int whole = 0;
    double real = 0.0;
    KivUnicodeString text(std::string(200, 'y'));
    KivSettingProvenance provenance;
    // The first of each key that is of another type is reported.
    EXPECT_EQ(repository.ReadSetting("Ruler", &real, 1), E_FAIL);
    EXPECT_EQ(KivDrwRead(&repository, KivDrwKeys::Drw_settings_GridPrimarySpacing), 100.0);

    static int made = 0;
    KivIsMemoryGiven = [] { return ++made > 0; };
    const HRESULT results[] = {
        repository.ReadSetting("Ruler", &whole, 1),
        repository.ReadSetting("Ruler", &real, 1),
        repository.ReadSetting("NeverHeardOf_AndLongerThanAnyShortString", &whole, 1),
        repository.ReadSetting("DrwGVSXmlTrel", &text, 1),
        repository.ReadBound(kKivDrwKeyNames, KivDrwIndices::DrwGVSXmlTrel, &text),
        repository.GetProvenance("Ruler", provenance),
    };
    real = KivDrwRead(&repository, KivDrwKeys::RotSnapAngle) +
           KivDrwRead(&repository, KivDrwKeys::Drw_settings_GridPrimarySpacing);
    whole = KivDrwRead(&repository, KivDrwKeys::Ruler);
    KivIsMemoryGiven = nullptr;
    EXPECT_EQ(made, 0);
    const HRESULT expected[] = {S_OK, E_FAIL, E_FAIL, S_OK, S_OK, S_OK};
    for (std::size_t i = 0; i < std::size(expected); ++i) EXPECT_EQ(results[i], expected[i]) << i;
    EXPECT_EQ(real, 130.0);
    EXPECT_EQ(whole, 1);
    EXPECT_EQ(text, KivUnicodeString(std::string(100, 'x')));
    EXPECT_TRUE(provenance.locked);
}

// The indices stay right when the table grows, when files change and after everything was forgotten.
TEST(Reads, IndicesNameTheirKeys)
{
    KivSettingsSandbox box;
    std::string bytes;
    for (std::size_t i = 0; i < std::size(kKivDrwKeyNames); i += 2)
        bytes += std::string("int ") + kKivDrwKeyNames[i] + " = " + std::to_string(i) + "\n";
    const auto check = [] {
        KivSettingRepository& repository = *KivDrwRepository();
        for (std::size_t i = 0; i < std::size(kKivDrwKeyNames); ++i) {
            int byName = -1, byIndex = -1;
            EXPECT_EQ(repository.ReadSetting(kKivDrwKeyNames[i], &byName, 1),
                      repository.ReadBound(kKivDrwKeyNames, i, &byIndex));
            EXPECT_EQ(byName, byIndex) << kKivDrwKeyNames[i];
        }
        int value = -1;
        EXPECT_EQ(repository.ReadBound(kKivDrwKeyNames, std::size(kKivDrwKeyNames), &value), E_FAIL);
    };
    check();
    box.Write(box.File("user"), bytes);
    KivDrwRepository()->Refresh();
    check();
    for (int i = 0; i < 2000; ++i)
        KivDrwRepository()->WriteSetting(("K" + std::to_string(i)).c_str(), &i, 1, 0);
    check();
    KivSettingRepository::ForgetAll();
    check();

    // Another part of the program binds keys of its own: indices of the catalogue name none of them.
    static const char* const theirs[] = {"K0", "K1", "K2", "K3", "GraduatedColorDitto"};
    KivSettingRepository& repository = *KivDrwRepository();
    repository.BindKeys(theirs);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(KivDrwRead(&repository, KivDrwKeys::GraduatedColor), 4);
        int value = -1;
        EXPECT_EQ(repository.ReadBound(kKivDrwKeyNames, 4, &value), E_FAIL);
        EXPECT_EQ(repository.ReadBound(theirs, 4, &value), repository.ReadSetting(theirs[4], &value, 1));
    }
    check();
}

} // namespace

#include "Disk/KivFileLock.h"
#include "Settings/KivSettingRepository.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <csignal>
#include <cstdint>
#include <limits>
#include <locale>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

using Receipt = KivSettingRepository::Receipt;

class CommaDecimals : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class Saving : public ::testing::Test {
protected:
    static HRESULT Put(KivSettingRepository& repository, const std::string& key, int value)
    {
        return repository.WriteSetting(key.c_str(), &value, 1, 0);
    }
    static Receipt Save(KivSettingRepository& repository)
    {
        const HRESULT result = repository.SaveRepository(nullptr);
        EXPECT_EQ(result == S_OK, repository.LastReceipt() != Receipt::Refused);
        return repository.LastReceipt();
    }

    KivSettingsSandbox box;
    const std::filesystem::path file = box.File("user");
};

TEST_F(Saving, ValuesRoundTripExactlyInEveryLocale)
{
    // Streams follow the C++ locale, the C functions theirs; the latter where this machine has such a locale.
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaDecimals));
    for (const char* comma : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"}) {
        if (std::setlocale(LC_ALL, comma)) break;
    }
    const double doubles[] = {0.1, -0.0, 1e308, std::numeric_limits<double>::denorm_min(), 1.0 / 3, 15};
    const float floats[] = {0.1F, -0.0F, 3.4e38F, std::numeric_limits<float>::denorm_min(), 1.0F / 3};
    const KivUnicodeString texts[] = {"", "\"\\\n\r\t\x01 # = x", "größe", KivUnicodeString("\xff\x80 a"),
                                      KivUnicodeString(std::string_view("a\0b", 3))};
    {
        KivSettingRepository& repository = box.Reopen();
        int key = 0;
        for (const auto& x : doubles)
            repository.WriteSetting(("K" + std::to_string(key++)).c_str(), &x, 1, 0);
        for (const auto& x : floats) repository.WriteSetting(("K" + std::to_string(key++)).c_str(), &x, 1, 0);
        for (const auto& x : texts) repository.WriteSetting(("K" + std::to_string(key++)).c_str(), &x, 1, 0);
        ASSERT_EQ(Save(repository), Receipt::Durable);
    }
    KivSettingRepository& repository = box.Reopen();
    int key = 0;
    for (const double x : doubles) {
        const double read = box.Read(repository, ("K" + std::to_string(key++)).c_str(), 7.0);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(read), std::bit_cast<std::uint64_t>(x)) << x;
    }
    for (const float x : floats) {
        const float read = box.Read(repository, ("K" + std::to_string(key++)).c_str(), 7.0F);
        EXPECT_EQ(std::bit_cast<std::uint32_t>(read), std::bit_cast<std::uint32_t>(x)) << x;
    }
    for (const auto& x : texts) {
        EXPECT_EQ(box.Read(repository, ("K" + std::to_string(key++)).c_str(), KivUnicodeString("?")), x);
    }
    EXPECT_TRUE(box.diagnostics.empty());
    std::locale::global(before);
    std::setlocale(LC_ALL, "C");
}

TEST_F(Saving, ReadsAndWritesOfTheWrongKindChangeNothing)
{
    KivSettingRepository& repository = box.Reopen();
    ASSERT_EQ(Put(repository, "Ruler", 1), S_OK);
    double real = 2.5;
    int two[2] = {8, 8};
    EXPECT_EQ(repository.ReadSetting("Ruler", &real, 1), E_FAIL);
    EXPECT_EQ(repository.ReadSetting("Ruler", two, 2), E_FAIL);
    EXPECT_EQ(repository.ReadSetting("ruler", two, 1), E_FAIL);
    EXPECT_EQ(repository.ReadSetting(nullptr, two, 1), E_FAIL);
    EXPECT_EQ(real, 2.5);
    EXPECT_EQ(two[0], 8);
    real = std::numeric_limits<double>::infinity();
    EXPECT_EQ(repository.WriteSetting("Ruler", &real, 1, 0), E_FAIL);
    for (const char* key : {"", "a b", "1a", "a=b", "ä", "a\nb"})
        EXPECT_EQ(Put(repository, key, 1), E_FAIL) << key;
    EXPECT_EQ(Put(repository, std::string(256, 'a'), 1), E_FAIL);
    EXPECT_EQ(repository.WriteSetting("Ruler", two, 1, 5), E_FAIL);
    EXPECT_EQ(box.Read(repository, "Ruler", 0), 1);
    real = 2.5;
    EXPECT_EQ(repository.WriteSetting("Ruler", &real, 1, 0), S_OK);
    EXPECT_EQ(box.Read(repository, "Ruler", 0.0), 2.5);

    for (const char* name : {"", ".", "..", "a/b", ".a", "a.b", "a\\b", "ä"}) {
        EXPECT_EQ(KivSettingRepository::GetRepository(name), nullptr) << name;
    }
    EXPECT_EQ(KivSettingRepository::GetRepository(std::string(101, 'a').c_str()), nullptr);
    EXPECT_EQ(KivSettingRepository::GetRepository("DraftingOptions"), &repository);
    KivSettingRepository::Withhold(true);
    EXPECT_EQ(KivSettingRepository::GetRepository("DraftingOptions"), nullptr);
}

TEST_F(Saving, CommitRollbackAndSaveTellWhatShowsAnotherValue)
{
    box.Write(file, "int A = 1\nint B = 1\n");
    KivSettingRepository& repository = box.Reopen();
    std::string told;
    KivSettingRepository::ListenerId second = 0;
    const auto first = repository.AddListener([&](const KivSettingRepository::Keys& keys) {
        for (const KivString& key : keys) told += std::string(key.View()) + " ";
        repository.RemoveListener(second); // while it is called
    });
    second = repository.AddListener([&](const KivSettingRepository::Keys&) { told += "removed "; });
    const auto said = [&] { return std::exchange(told, {}); };

    Put(repository, "A", 2);
    Put(repository, "C", 1);
    EXPECT_EQ(told, "");
    EXPECT_EQ(repository.Rollback(), S_OK);
    EXPECT_EQ(said(), "A C ");
    EXPECT_EQ(box.Read(repository, "A", 0), 1);
    EXPECT_EQ(box.Read(repository, "C", 9), 9);
    EXPECT_EQ(Save(repository), Receipt::Nothing);

    Put(repository, "A", 3);
    repository.Commit(1);
    EXPECT_EQ(said(), "A ");
    Put(repository, "A", 4);
    Put(repository, "B", 4);
    Put(repository, "B", 1);
    repository.Rollback();
    EXPECT_EQ(said(), "A ");
    EXPECT_EQ(box.Read(repository, "A", 0), 3);
    Put(repository, "B", 5);
    repository.Commit(0);
    EXPECT_EQ(said(), "");
    const char* keys[] = {"B"};
    repository.ResetToAdminValues(keys, 1);
    EXPECT_EQ(Save(repository), Receipt::Durable);
    EXPECT_EQ(said(), "B ");
    EXPECT_EQ(box.Saved(file), "int A = 3\n");
    repository.Rollback();
    EXPECT_EQ(box.Read(repository, "A", 0), 3);

    struct stat saved {
    }, again{};
    stat(file.c_str(), &saved);
    EXPECT_EQ(Save(repository), Receipt::Nothing);
    stat(file.c_str(), &again);
    EXPECT_EQ(saved.st_ino, again.st_ino);

    // What another program saved arrives, and what is not committed here stays on top and can be taken back.
    Put(repository, "A", 6);
    box.Write(file, "int A = 7\nint D = 7\n");
    repository.Refresh();
    EXPECT_EQ(said(), "D ");
    EXPECT_EQ(box.Read(repository, "A", 0), 6);
    repository.Rollback();
    EXPECT_EQ(box.Read(repository, "A", 0), 7);
    repository.RemoveListener(first);

    // Also in as many bytes, the time put back.
    const auto time = std::filesystem::last_write_time(file);
    std::this_thread::sleep_for(std::chrono::milliseconds(20)); // clocks of file systems are coarse
    box.Write(file, "int A = 8\nint D = 7\n");
    std::filesystem::last_write_time(file, time);
    EXPECT_EQ(repository.Refresh().size(), 1U);
    EXPECT_EQ(box.Read(repository, "A", 0), 8);
}

TEST_F(Saving, ARefusedSaveKeepsEverythingForTheNextOne)
{
    box.Write(file, "int A = 1\n");
    KivSettingRepository& repository = box.Reopen();
    Put(repository, "A", 2);
    std::string told;
    repository.AddListener([&](const KivSettingRepository::Keys& keys) {
        for (const KivString& key : keys) told += key.View();
    });

    // What another program stored before that is taken all the same.
    box.Write(file, "int A = 1\nint B = 1\n");
    const auto obstacle = box.root / "user/.DraftingOptions.kivsettings.tmp";
    std::filesystem::create_directory(obstacle);
    EXPECT_EQ(Save(repository), Receipt::Refused);
    EXPECT_EQ(box.Said("the settings were not saved: the temporary file cannot be made"), 1);
    std::filesystem::remove(obstacle);
    EXPECT_EQ(box.Bytes(file), "int A = 1\nint B = 1\n");
    EXPECT_EQ(std::exchange(told, {}), "B");
    EXPECT_EQ(repository.Refresh().size(), 1U) << "who follows refreshes alone has not seen it yet";
    EXPECT_EQ(std::exchange(told, {}), "B");
    EXPECT_TRUE(repository.Refresh().empty());

    EXPECT_EQ(box.Read(repository, "A", 0), 2);
    repository.Rollback(); // a refused save is no point to return to
    EXPECT_EQ(box.Read(repository, "A", 0), 1);
    Put(repository, "A", 2);
    EXPECT_EQ(Save(repository), Receipt::Durable);
    EXPECT_EQ(box.Saved(file), "int A = 2\nint B = 1\n");

    // Another program is stopped while it saves.
    {
        const KivFileLock stopped(KivUnicodeString(file.string()));
        ASSERT_TRUE(stopped.IsHeld());
        Put(repository, "A", 3);
        EXPECT_EQ(Save(repository), Receipt::Refused);
        EXPECT_EQ(box.Said("another program has been saving the file for too long"), 1);
    }
    EXPECT_EQ(Save(repository), Receipt::Durable);
}

// The values of the first start give way to a site default that is deployed later.
TEST_F(Saving, TheFirstStartYieldsToTheAdministrator)
{
    KivSettingRepository& first = box.Reopen();
    char name[256], type[256];
    long count = 0;
    EXPECT_NE(first.NextAttribute(name, type, &count, 1), 0);
    const int value = 1, mine = 3;
    ASSERT_EQ(first.WriteSetting("Mine", &mine, 1, 0), S_OK);
    {
        const KivSettingRepository::InitialScope scope(first);
        ASSERT_EQ(first.WriteSetting("Ruler", &value, 1, 0), S_OK);
        ASSERT_EQ(first.WriteSetting("Mine", &value, 1, 0), S_OK);
    }
    ASSERT_EQ(first.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Saved(box.File("user")), "int Mine = 1\ninitial int Ruler = 1\n");
    EXPECT_EQ(first.NextAttribute(name, type, &count, 1), 0);

    box.NameLayers({"site"});
    box.Write(box.File("site"), "int Ruler = 2\nint Mine = 2\n");
    KivSettingRepository& later = box.Reopen();
    EXPECT_EQ(box.Read(later, "Ruler", 0), 2);
    EXPECT_EQ(box.Read(later, "Mine", 0), 1);
    ASSERT_EQ(later.WriteSetting("Ruler", &value, 1, 0), S_OK); // the same value, now chosen
    ASSERT_EQ(later.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Read(box.Reopen(), "Ruler", 0), 1);
}

} // namespace

#include "Disk/KivFileContent.h"
#include "Settings/KivSettingFile.h"
#include "Settings/KivSettingRepository.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using Receipt = KivSettingRepository::Receipt;

class Damage : public ::testing::Test {
protected:
    static Receipt PutAndSave(KivSettingRepository& repository, const char* key, int value)
    {
        repository.WriteSetting(key, &value, 1, 0);
        repository.SaveRepository(nullptr);
        return repository.LastReceipt();
    }

    KivSettingsSandbox box;
    const std::filesystem::path file = box.File("user");
};

TEST_F(Damage, ALineCostsItselfAlone)
{
    const auto costsItself = [&](const std::string& line) {
        box.diagnostics.clear();
        box.Write(file, "int Before = 1\n" + line + "\nint After = 2\n");
        const KivSettingRepository& repository = box.Reopen();
        EXPECT_EQ(box.Read(repository, "Before", 0), 1) << line;
        EXPECT_EQ(box.Read(repository, "After", 0), 2) << line;
        KivSettingInfo info;
        EXPECT_EQ(repository.GetInfo("Bad", &info, 0), E_FAIL) << line;
        EXPECT_EQ(box.Said("DraftingOptions.kivsettings:2: Bad: "), 1) << line;
        EXPECT_FALSE(repository.IsProtected());
    };
    const std::pair<std::string, std::vector<const char*>> types[] = {
        {"int", {"", " =", " = 2147483648", " = 1.5", " = 1,5", " = 1 2"}},
        {"unsigned", {" = -1"}},
        {"float", {" = 1e39"}},
        {"double", {" = nan", " = inf", " = 1e999", " = 0x10"}},
        {"string", {" = x", " = \"x", " = \"\\q\"", " = \"\xff\"", " = \"\\x4\"", " = \"a\"b\""}}};
    for (const auto& [type, ends] : types)
        for (const char* end : ends) costsItself(type + " Bad" + end);
}

TEST_F(Damage, WhatNoProgramWroteIsSetAsideBeforeASave)
{
    const auto copy = [&](int number) {
        return box.root / ("user/DraftingOptions.kivsettings.damaged-" + std::to_string(number));
    };
    const std::string damaged("int A = 1\nint Ru\0ler = 5\nnoise\nint B = x\nint C = 3", 50);
    box.Write(file, damaged);
    box.Write(copy(1), "earlier");
    box.Reopen();
    KivSettingRepository& repository = box.Reopen();
    EXPECT_EQ(box.Read(repository, "C", 0), 3);
    EXPECT_EQ(PutAndSave(repository, "B", 2), Receipt::Durable);
    EXPECT_EQ(box.Bytes(copy(1)), "earlier");
    EXPECT_EQ(box.Bytes(copy(2)), damaged);
    EXPECT_EQ(box.Saved(file), std::string("int A = 1\nint Ru\0ler = 5\nnoise\nint B = 2\nint C = 3\n", 51));
    EXPECT_EQ(PutAndSave(repository, "A", 5), Receipt::Durable);
    EXPECT_EQ(PutAndSave(box.Reopen(), "A", 6), Receipt::Durable);
    EXPECT_EQ(box.Names("user").size(), 3U) << "damage that a save has left is not set aside again";

    // An edit by hand is served, told once, and set aside; the newest three stay, and each bytes once.
    for (int edit = 1; edit <= 3; ++edit) {
        const std::string edited = box.Bytes(file) + "int Hand = " + std::to_string(edit) + "\n";
        box.Write(file, edited);
        box.diagnostics.clear();
        for (int look = 0; look < 3; ++look) repository.Refresh();
        EXPECT_EQ(box.Said("edited by hand, or damaged"), 1);
        EXPECT_EQ(box.Read(repository, "Hand", 0), edit);
        EXPECT_EQ(PutAndSave(repository, "A", -edit), Receipt::Durable);
        EXPECT_EQ(box.Bytes(copy(2 + edit)), edited);
    }
    box.Write(file, box.Bytes(copy(4)));
    EXPECT_EQ(PutAndSave(repository, "A", 8), Receipt::Durable) << "found only by the save itself";
    EXPECT_EQ(box.Read(repository, "Hand", 0), 2);
    const std::string name = file.filename().string() + ".damaged-";
    EXPECT_EQ(box.Names("user"), (std::vector{file.filename().string(), name + "3", name + "4", name + "5"}));
}

TEST_F(Damage, AFileMayEndAnywhereOrBeOfALaterVersion)
{
    const std::string whole = "# kivsettings 1\nint First = 1\nlock initial double D = 1e5\n";
    for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
        box.Write(file, whole.substr(0, cut));
        EXPECT_EQ(box.Read(box.Reopen(), "First", 0), cut >= 29 ? 1 : 0) << cut;
    }
    box.diagnostics.clear();
    box.Write(file, "# kivsettings 2\nint First = 1\n");
    EXPECT_EQ(box.Read(box.Reopen(), "First", 0), 1);
    EXPECT_EQ(box.Said("of another version"), 1);
}

// Never looks new, serves what the administrator says, and refuses to be written over.
TEST_F(Damage, AFileThatCannotBeReadIsProtected)
{
    box.NameLayers({"site"});
    std::filesystem::create_directory(box.root / "site");
    const auto isProtected = [&](const char* what) {
        box.diagnostics.clear();
        KivSettingRepository& repository = box.Reopen();
        EXPECT_TRUE(repository.IsProtected()) << what;
        EXPECT_EQ(box.Said("changes cannot be saved"), 1) << what;
        char name[256], type[256];
        long count = 0;
        EXPECT_EQ(repository.NextAttribute(name, type, &count, 1), 0) << what;
        EXPECT_NE(repository.NextAttribute(name, type, &count, 0), 0) << what;
        EXPECT_EQ(PutAndSave(repository, "Ruler", 1), Receipt::Refused) << what;
        EXPECT_EQ(box.Read(repository, "Ruler", 0), 1) << what;
        EXPECT_GT(box.Said("the settings were not saved"), 0) << what;
    };
    std::filesystem::create_directory(file);
    isProtected("directory");
    box.Write(box.File("site"), "int Grid = 2\n");
    isProtected("directory, with an administrator's value");
    EXPECT_EQ(box.Read(box.Reopen(), "Grid", 0), 2);
    std::filesystem::remove(file);

    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    isProtected("pipe");
    std::filesystem::remove(file);

    std::filesystem::create_symlink(file, file);
    isProtected("endless link");
    std::filesystem::remove(file);

    box.Write(file, "");
    std::filesystem::resize_file(file, KivMostBytes + 1);
    isProtected("size");
    EXPECT_GT(box.Said("67108865 bytes"), 0);
    box.Write(file, std::string(KivMostLines + 1, '\n'));
    isProtected("lines");
    EXPECT_EQ(box.Names("user").size(), 1U);

    // Nor is a file written that could not be read again; its head and seal are lines too.
    box.diagnostics.clear();
    box.Write(file, std::string(KivMostLines - 2, '\n'));
    EXPECT_EQ(PutAndSave(box.Reopen(), "Ruler", 1), Receipt::Refused);
    EXPECT_EQ(box.Said("not saved: the file is too large: 1048577 lines"), 1);

    // Once it can be read the pending change is saved on top of it.
    KivSettingRepository& repository = box.Reopen();
    EXPECT_EQ(PutAndSave(repository, "Ruler", 1), Receipt::Refused);
    box.Write(file, "int Snap = 3\n");
    EXPECT_EQ(repository.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Saved(file), "int Snap = 3\nint Ruler = 1\n");
    EXPECT_EQ(box.Read(repository, "Snap", 0), 3);
    EXPECT_FALSE(repository.IsProtected());

    std::filesystem::remove_all(box.root / "user");
    box.Write(box.root / "user", "a file in place of the directory");
    EXPECT_TRUE(box.Reopen().IsProtected());
    std::filesystem::remove(box.root / "user");
    EXPECT_FALSE(box.Reopen().IsProtected());
}

// Gives up the superuser's rights for a while, whom permissions do not bind.
class PlainUser {
public:
    PlainUser() { EXPECT_EQ(seteuid(_before == 0 ? 65534 : _before), 0); }
    ~PlainUser() { EXPECT_EQ(seteuid(_before), 0); }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;

private:
    uid_t _before = geteuid();
};

TEST_F(Damage, MissingPermissionsRefuseAndLoseNothing)
{
    box.Write(file, "int Snap = 3\n");
    for (const auto& path : {box.root, box.root / "user"}) chmod(path.c_str(), 0755);
    chmod(file.c_str(), 0644);
    chmod((box.root / "user").c_str(), 0555);
    {
        const PlainUser user;
        KivSettingRepository& repository = box.Reopen();
        EXPECT_EQ(box.Read(repository, "Snap", 0), 3);
        EXPECT_EQ(PutAndSave(repository, "Ruler", 1), Receipt::Refused);
        EXPECT_EQ(box.Said(".lock cannot be opened: Permission denied"), 1);
        EXPECT_EQ(box.Read(repository, "Ruler", 0), 1);
    }
    chmod(file.c_str(), 0);
    {
        const PlainUser user;
        KivSettingRepository& repository = box.Reopen();
        EXPECT_TRUE(repository.IsProtected());
        EXPECT_EQ(PutAndSave(repository, "Ruler", 1), Receipt::Refused);
        KivSettingRepository::ForgetAll();
    }
    chmod((box.root / "user").c_str(), 0755);
    chmod(file.c_str(), 0600);
    EXPECT_EQ(box.Bytes(file), "int Snap = 3\n");
}

} // namespace

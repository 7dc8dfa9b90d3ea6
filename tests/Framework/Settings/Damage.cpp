#include "Settings/KivSettingRepository.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

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

// Never looks new, and refuses to be written over.
TEST_F(Damage, AFileThatCannotBeReadIsProtected)
{
    std::filesystem::create_directory(file);
    KivSettingRepository& repository = box.Reopen();
    EXPECT_TRUE(repository.IsProtected());
    char name[256], type[256];
    long count = 0;
    EXPECT_EQ(repository.NextAttribute(name, type, &count, 1), 0);
    EXPECT_NE(repository.NextAttribute(name, type, &count, 0), 0);
    EXPECT_EQ(PutAndSave(repository, "Ruler", 1), Receipt::Refused);
    EXPECT_EQ(box.Read(repository, "Ruler", 0), 1);
    std::filesystem::remove(file);
    // Once it can be read the pending change is saved on top of it.
    box.Write(file, "int Snap = 3\n");
    EXPECT_EQ(repository.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Saved(file), "int Snap = 3\nint Ruler = 1\n");
    EXPECT_EQ(box.Read(repository, "Snap", 0), 3);
    EXPECT_FALSE(repository.IsProtected());

    // Nor is one written over that others may have replaced since it was read.
    std::filesystem::permissions(box.root / "user", std::filesystem::perms::all);
    EXPECT_EQ(PutAndSave(repository, "Ruler", 2), Receipt::Refused);
}

} // namespace

#include "Settings/KivSettingTransaction.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Keys = KivSettingRepository::Keys;

class Locks : public ::testing::Test {
protected:
    static KivSettingInfo Info(const char* key)
    {
        KivSettingInfo info;
        KivSettingRepository::GetRepository("DraftingOptions")->GetInfo(key, &info, 0);
        return info;
    }
    // Who locks a key, as "layer:line".
    static std::string Locker(const char* key)
    {
        const KivSettingInfo info = Info(key);
        if (!info.locked && !info.lockedHere) return "";
        return std::string(info.lockLayer.View()) + ":" + std::to_string(info.lockLine);
    }
    static HRESULT Put(const char* key, int value)
    {
        return KivSettingRepository::GetRepository("DraftingOptions")->WriteSetting(key, &value, 1, 0);
    }
    KivSettingsSandbox box;
};

TEST_F(Locks, APrefixThatComesOrGoesChangesWhatItCovers)
{
    box.NameLayers({"site", "team"});
    box.Write(box.File("site"), "int DimA = 2\nlock Dim*\n");
    box.Write(box.File("team"), "int DimA = 3\nlock D*\n");
    box.Write(box.File("user"), "int DimA = 4\nint Other = 4\n");
    KivSettingRepository& repository = box.Reopen();
    EXPECT_EQ(Locker("DimNeverHeardOf"), "site:2");
    EXPECT_EQ(Put("Other", 9), S_OK);
    KivSettingProvenance provenance;
    EXPECT_EQ(repository.GetProvenance("DimA", provenance), S_OK);
    EXPECT_TRUE(provenance.locked);
    EXPECT_EQ(*provenance.layer, "site");
    EXPECT_EQ(provenance.line, 1);
    EXPECT_EQ(repository.GetProvenance("Never", provenance), E_FAIL);

    box.Write(box.File("site"), "int DimA = 2\n");
    Keys changed = repository.Refresh();
    EXPECT_NE(std::find(changed.begin(), changed.end(), KivString("DimA")), changed.end());
    EXPECT_EQ(Locker("DimNeverHeardOf"), "team:2");
    box.Write(box.File("team"), "lock *\n");
    changed = repository.Refresh();
    EXPECT_NE(std::find(changed.begin(), changed.end(), KivString("Other")), changed.end());
    EXPECT_EQ(Put("Anything", 9), E_FAIL);
    EXPECT_EQ(box.Read(repository, "Other", 0), 0);
    ASSERT_EQ(repository.SaveRepository(nullptr), S_OK);
    EXPECT_NE(box.Bytes(box.File("user")).find("int Other = 9"), std::string::npos);
}

// A file of locks costs time in proportion to its size: with the square of it this would not end in time.
TEST_F(Locks, ManyPrefixesAreResolvedInLinearTime)
{
    box.NameLayers({"site"});
    std::string bytes, keys;
    for (int i = 0; i < 200000; ++i) {
        bytes += "lock P" + std::to_string(i) + "x*\n";
        keys += "int P" + std::to_string(i) + "xKey = 1\n";
    }
    box.Write(box.File("site"), bytes);
    box.Write(box.File("user"), keys);
    EXPECT_EQ(box.Read(box.Reopen(), "P199999xKey", 0), 0);
    EXPECT_EQ(Locker("P31415xKey"), "site:31416");
}

TEST_F(Locks, ABatchStoresWhatItMayAndNamesTheRest)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "lock int Ruler = 1\nlock Dim*\n");
    box.Write(box.File("user"), "int Old = 1\n");
    KivSettingTransaction batch(box.Reopen());
    batch.Set("Ruler", 5);
    batch.Set("Grid", 1);
    batch.Set("DimNew", KivUnicodeString("x"));
    batch.Set("not a key", 1);
    batch.Set("Angle", std::numeric_limits<double>::infinity());
    batch.Set("Grid", 2);
    batch.Set("Old", {});
    batch.Set("DimOld", {});
    EXPECT_EQ(box.Bytes(box.File("user")), "int Old = 1\n");
    EXPECT_EQ(batch.Save(), KivSettingRepository::Receipt::Durable);
    EXPECT_EQ(box.Saved(box.File("user")), "int Grid = 2\n");
    std::string refused;
    for (const auto& refusal : batch.Refusals()) {
        refused += std::string(refusal.key.View()) + "/" + std::string(refusal.locker.lockLayer.View()) +
                   std::to_string(refusal.locker.lockLine) + " ";
        EXPECT_FALSE(refusal.why.IsEmpty());
    }
    EXPECT_EQ(refused, "Ruler/site1 DimNew/site2 not a key/0 Angle/0 DimOld/site2 ");
}

// Of a value and of a lock, of a first start and of a user: each has changed the file since the other read
// it.
TEST_F(Locks, WhatTwoSayOfOneKeyIsMerged)
{
    box.Write(box.File("site"), "# kivsettings 1\nint A = 1\nint B = 1\n");
    KivSettingRepository::SetEditedLayer(KivUnicodeString((box.root / "site").string()));
    KivSettingRepository& site = box.Reopen();
    Put("A", 2);
    site.SetLock("B", true);
    box.Write(box.File("site"), "# kivsettings 1\nlock int A = 1\nint B = 3\n");
    EXPECT_EQ(site.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Saved(box.File("site")), "lock int A = 2\nlock int B = 3\n");

    KivSettingRepository::SetEditedLayer({});
    KivSettingRepository& user = box.Reopen();
    {
        const KivSettingRepository::InitialScope scope(user);
        Put("C", 1);
    }
    box.Write(box.File("user"), "int C = 5\n");
    EXPECT_EQ(user.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Read(user, "C", 0), 5);
}

} // namespace

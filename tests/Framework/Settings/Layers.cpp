#include "Settings/KivSettingLayerList.h"
#include "Settings/KivSettingRepository.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

class Layers : public ::testing::Test {
protected:
    std::string Message(const char* key)
    {
        KivSettingInfo info;
        KivSettingRepository::GetRepository("DraftingOptions")->GetInfo(key, &info, 0);
        std::string words(info.Message().View());
        for (std::size_t at; (at = words.find(box.root.string())) != std::string::npos;) {
            words.replace(at, box.root.string().size(), "~");
        }
        return words;
    }
    std::string Text(const char* key)
    {
        return std::string(
            box.Read(*KivSettingRepository::GetRepository("DraftingOptions"), key, KivUnicodeString("none"))
                .View());
    }
    HRESULT WriteText(const char* key, const char* text)
    {
        const KivUnicodeString value(text);
        return KivSettingRepository::GetRepository("DraftingOptions")->WriteSetting(key, &value, 1, 0);
    }

    KivSettingsSandbox box;
};

// Every layer says its own name, so that a value tells who won.
TEST_F(Layers, TheRightOneWins)
{
    box.NameLayers({"company", "site"});
    box.Write(box.File("company"), "string Both = \"company\"\nlock string Outer = \"company\"\n"
                                   "string Bare = \"company\"\nlock Nothing\nstring First = \"company\"\n");
    box.Write(box.File("site"),
              "string Both = \"site\"\nlock string Outer = \"site\"\nlock Bare\n"
              "string User = \"site\"\nlock string Inner = \"site\"\nstring Initial = \"site\"\n");
    box.Write(box.File("user"), "string User = \"user\"\nstring Outer = \"user\"\nstring Inner = \"user\"\n"
                                "string Bare = \"user\"\nstring Nothing = \"user\"\n"
                                "initial string Initial = \"user\"\ninitial string First = \"user\"\n");
    box.Reopen();
    EXPECT_EQ(Text("Both"), "site");
    EXPECT_EQ(Text("User"), "user");
    EXPECT_EQ(Text("Outer"), "company");
    EXPECT_EQ(Text("Inner"), "site");
    EXPECT_EQ(Text("Bare"), "company");
    EXPECT_EQ(Text("Nothing"), "none");
    EXPECT_EQ(Text("Initial"), "site");
    EXPECT_EQ(Text("First"), "company");

    EXPECT_EQ(Message("Both"),
              "Set by the administrator in layer \"site\" (~/site/DraftingOptions.kivsettings, "
              "line 1); you may change it.");
    EXPECT_EQ(Message("User"), "Set by you.");
    EXPECT_EQ(Message("Outer"), "Locked by the administrator at company in layer \"company\" "
                                "(~/company/DraftingOptions.kivsettings, line 2).");
    EXPECT_EQ(Message("Bare"),
              "Locked by the administrator at company in layer \"site\" (~/site/DraftingOptions.kivsettings, "
              "line 3). "
              "The value is set in layer \"company\" (~/company/DraftingOptions.kivsettings, line 3).");
    EXPECT_EQ(Message("Nothing"), "Locked by the administrator at the default in layer \"company\" "
                                  "(~/company/DraftingOptions.kivsettings, line 4).");
    EXPECT_EQ(Message("Unheard"), "Not set: the default applies.");

    for (const char* key : {"Outer", "Inner", "Bare", "Nothing"})
        EXPECT_EQ(WriteText(key, "x"), E_FAIL) << key;
    EXPECT_EQ(WriteText("Initial", "mine"), S_OK);
    EXPECT_EQ(Text("Initial"), "mine");
    const char* keys[] = {"Initial", "User", "Unheard", nullptr};
    KivSettingRepository& repository = *KivSettingRepository::GetRepository("DraftingOptions");
    EXPECT_EQ(repository.ResetToAdminValues(keys, 4), S_OK);
    EXPECT_EQ(Text("Initial"), "site");
    EXPECT_EQ(Text("User"), "site");
    ASSERT_EQ(repository.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Saved(box.File("user")),
              "string Outer = \"user\"\nstring Inner = \"user\"\nstring Bare = \"user\"\n"
              "string Nothing = \"user\"\ninitial string First = \"user\"\n");
}

TEST_F(Layers, TheUsersChoiceOfLayersCountsOnlyWithoutTheSystems)
{
    box.Write(box.File("chosen"), "lock int Ruler = 1\n");
    box.Write(box.File("site"), "lock int Ruler = 2\n");
    box.SetVariable("KivAdminSettingsPath", (box.root / "chosen").string());
    EXPECT_EQ(box.Read(box.Reopen(), "Ruler", 0), 1);
    EXPECT_FALSE(KivSettingLayerList::Read().IsEnforced());
    box.NameLayers({"site"});
    EXPECT_EQ(box.Read(box.Reopen(), "Ruler", 0), 2);
    EXPECT_TRUE(KivSettingLayerList::Read().IsEnforced());

    // A system file that cannot be read any more opens no lock.
    std::filesystem::remove(box.root / "layers");
    std::filesystem::create_directory(box.root / "layers");
    EXPECT_EQ(box.Read(box.Reopen(), "Ruler", 0), 2);
    EXPECT_GT(box.Said("a directory stands in place of the file"), 0);
}

TEST_F(Layers, LocksHoldWhateverBecomesOfTheFile)
{
    box.NameLayers({"site"});
    const auto file = box.File("site");
    const std::string whole = "# kivsettings 1\nint Grid = 5\nlock int Ruler = 1\nlock int Snap = 2\n";
    const auto locked = [&](const char* what) {
        box.diagnostics.clear();
        KivSettingRepository& repository = box.Reopen();
        const int other = 7;
        EXPECT_EQ(box.Read(repository, "Ruler", 0), 1) << what;
        EXPECT_EQ(box.Read(repository, "Snap", 0), 2) << what;
        EXPECT_EQ(repository.WriteSetting("Snap", &other, 1, 0), E_FAIL) << what;
    };
    box.Write(file, whole);
    locked("whole");
    EXPECT_TRUE(box.diagnostics.empty());

    box.Write(file, "int Ruler = much\n" + whole);
    locked("damaged");
    EXPECT_GT(box.Said("copy of its last complete state is in force"), 0);
    std::filesystem::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    locked("pipe");
    std::filesystem::remove(file);
    std::filesystem::rename(box.root / "site", box.root / "away");
    locked("away");
    EXPECT_EQ(box.Said("is away"), 1);
    std::filesystem::rename(box.root / "away", box.root / "site");

    // A copy that was tampered with is none.
    box.Write(file, "lock int Ruler = 1\nint Snap = x\nlock int Late = y\n");
    std::filesystem::path copy;
    for (const std::string& name : box.Names("cache/kiv/layers")) {
        if (name.ends_with(".kivsettings")) copy = box.root / "cache/kiv/layers" / name;
    }
    std::string bytes = box.Bytes(copy);
    bytes.replace(bytes.find("Snap = 2"), 8, "Snap = 3");
    box.Write(copy, bytes);
    KivSettingRepository& repository = box.Reopen();
    EXPECT_EQ(box.Read(repository, "Snap", 0), 0);
    const int other = 7;
    EXPECT_EQ(repository.WriteSetting("Late", &other, 1, 0), E_FAIL);
}

TEST_F(Layers, AnAdministratorEditsOneLayer)
{
    box.NameLayers({"company", "site", "team"});
    box.Write(box.File("company"), "lock int Fixed = 1\nint Grid = 1\nlock Cmp*\n");
    box.Write(box.File("site"), "# of the site\nlock int Ruler = 2\nint Grid = 2\n");
    box.Write(box.File("team"), "int Grid = 3\n");
    box.Write(box.File("user"), "int Grid = 4\nint Ruler = 4\n");
    EXPECT_FALSE(box.Reopen().IsAdministrator());
    EXPECT_EQ(KivSettingRepository::GetRepository("DraftingOptions")->SetLock("Grid", true), E_FAIL);

    KivSettingRepository::SetEditedLayer(KivUnicodeString((box.root / "site/").string()));
    KivSettingRepository& site = *KivSettingRepository::GetRepository("DraftingOptions");
    ASSERT_TRUE(site.IsAdministrator());
    EXPECT_EQ(box.Read(site, "Grid", 0), 2);
    const int nine = 9;
    EXPECT_EQ(site.WriteSetting("Fixed", &nine, 1, 0), E_FAIL);
    for (const char* refused : {"Fixed", "Cmp*", "CmpX*", "Dim**"})
        EXPECT_EQ(site.SetLock(refused, true), E_FAIL) << refused;
    EXPECT_EQ(site.WriteSetting("Ruler", &nine, 1, 0), S_OK);
    EXPECT_EQ(site.SetLock("Grid", true), S_OK);
    EXPECT_EQ(site.SetLock("Later", true), S_OK); // of what the layer gives no value
    KivSettingInfo info;
    EXPECT_EQ(site.GetInfo("Ruler", &info, 0), S_OK);
    EXPECT_FALSE(info.locked);
    EXPECT_TRUE(info.lockedHere);
    EXPECT_EQ(info.origin, KivSettingInfo::Origin::Administrator);
    const char* keys[] = {"Grid"};
    EXPECT_EQ(site.ResetToAdminValues(keys, 1), S_OK);
    EXPECT_EQ(box.Read(site, "Grid", 0), 1);
    ASSERT_EQ(site.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Saved(box.File("site")), "# of the site\nlock int Ruler = 9\nlock Later\n");
    EXPECT_EQ(site.SetLock("Ruler", false), S_OK);
    EXPECT_EQ(site.SetLock("Later", false), S_OK);
    ASSERT_EQ(site.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Saved(box.File("site")), "# of the site\nint Ruler = 9\n");

    KivSettingRepository::SetEditedLayer({});
    EXPECT_EQ(box.Read(box.Reopen(), "Grid", 0), 1);
    EXPECT_EQ(box.Bytes(box.File("user")), "int Grid = 4\nint Ruler = 4\n");
}

// The values of the first start give way to a site default that is deployed later.
TEST_F(Layers, TheFirstStartYieldsToTheAdministrator)
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

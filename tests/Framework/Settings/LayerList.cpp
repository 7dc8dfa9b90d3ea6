#include "Settings/KivSettingFindings.h"
#include "Settings/KivSettingLayerList.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A machine with a list of layers that names one, which locks the ruler.
class LayerList : public ::testing::Test {
protected:
    LayerList()
    {
        box.NameLayers({"site"});
        box.Write(box.File("site"), kSite);
        box.Write(box.File("chosen"), "lock int Ruler = 9\n");
        box.Write(box.File("user"), "int Ruler = 4\nint Grid = 4\n");
        box.SetVariable("KivAdminSettingsPath", (box.root / "chosen").string());
    }

    // Who locks the ruler and at what, and whether the grid is locked as well: "site=1" or "layers=0*".
    static std::string State(KivSettingRepository& repository)
    {
        KivSettingInfo ruler, grid;
        repository.GetInfo("Ruler", &ruler, 0);
        repository.GetInfo("Grid", &grid, 0);
        const int other = 7;
        EXPECT_EQ(repository.WriteSetting("Ruler", &other, 1, 0), ruler.locked ? E_FAIL : S_OK);
        const int value = KivSettingsSandbox::Read(repository, "Ruler", 0);
        return std::string(ruler.lockLayer.View()) + "=" + std::to_string(value) + (grid.locked ? "*" : "");
    }
    // The next start of a program on a machine that knows nothing yet.
    KivSettingRepository& StartAnew()
    {
        std::filesystem::remove_all(box.root / "cache");
        return box.Reopen();
    }
    std::string Reason()
    {
        KivSettingInfo info;
        KivSettingRepository::GetRepository("DraftingOptions")->GetInfo("Ruler", &info, 0);
        return std::string(info.Message().View());
    }

    static constexpr const char* kSite = "# kivsettings 1\nlock int Ruler = 1\n";
    KivSettingsSandbox box;
    const std::string site = (box.root / "site").string();
    const std::filesystem::path list = box.root / "layers";
};

// What is known stays, in memory and on disk; without knowledge everything is closed. Nothing lets a user's
// choice of layers count.
TEST_F(LayerList, WhatIsNotBelievedOpensNoLock)
{
    const std::string sealed = KivSettingSeal::Put("# ours\n" + site + "\n");
    std::string flipped = sealed;
    flipped[flipped.find("site")] ^= 1;
    const std::string away = (box.root / "away").string();
    const std::pair<std::string, const char*> lists[] = {
        {"", "is empty"},
        {site.substr(0, site.size() - 2), "ends within a line"},
        {site, "ends within a line"},
        {"# ours\n", "names none"},
        {"\xef\xbb\xbf\r\n", "names none"},
        {site + "\nrubbish\n", "is damaged"},
        {"optional " + site.substr(1) + "\n", "is damaged"},
        {"optional\n" + away + "\n", "is damaged"},
        {site + "\nNone\n", "is damaged"},
        {site + "\x01\n", "is damaged"},
        {"none\n" + site + "\n", "says \"none\""},
        {flipped, "its seal does not fit"},
        {sealed.substr(0, sealed.find("# kivsettings seal")), "its seal does not fit"},
    };
    for (const auto& [bytes, words] : lists) {
        SCOPED_TRACE(testing::PrintToString(bytes));
        box.Write(list, site + "\n");
        KivSettingRepository& running = StartAnew();
        ASSERT_EQ(State(running), "site=1");
        box.Write(list, bytes);
        box.diagnostics.clear();
        EXPECT_EQ(State(box.Reopen()), "site=1") << "from the copy";
        EXPECT_EQ(box.Said(words), 1);
        std::filesystem::remove_all(box.root / "cache");
        running.Refresh();
        EXPECT_EQ(State(running), "site=1") << "from memory";

        KivSettingRepository& fresh = StartAnew();
        EXPECT_EQ(State(fresh), "layers=0*");
        EXPECT_NE(Reason().find(words), std::string::npos) << Reason();
        box.Write(list, sealed);
        EXPECT_FALSE(fresh.Refresh().empty());
        EXPECT_EQ(State(fresh), "site=1") << "as soon as it can be read";
    }
}

// Removed, alone or with its directory, it withdraws all layers; what is only out of sight does not.
TEST_F(LayerList, WithdrawsNothingByBeingOutOfSight)
{
    box.Write(list, "none\n");
    EXPECT_EQ(State(StartAnew()), "=7");
    EXPECT_TRUE(KivSettingLayerList::Read().IsEnforced());
    std::filesystem::remove(list);
    EXPECT_EQ(State(StartAnew()), "chosen=9");
    EXPECT_FALSE(KivSettingLayerList::Read().IsEnforced());
    std::filesystem::create_directories(box.root / "etc/kiv");
    KivSettingLayers::SetSystemFile(KivUnicodeString((box.root / "etc/kiv/layers").string()));
    box.Write(box.root / "etc/kiv/layers", site + "\n");
    EXPECT_EQ(State(StartAnew()), "site=1");
    std::filesystem::rename(box.root / "etc/kiv", box.root / "share");
    std::filesystem::create_symlink(box.root / "unmounted", box.root / "etc/kiv");
    EXPECT_EQ(State(box.Reopen()), "site=1");
    EXPECT_EQ(State(StartAnew()), "layers=0*");
    std::filesystem::remove(box.root / "etc/kiv");
    EXPECT_EQ(State(StartAnew()), "chosen=9");
    std::filesystem::create_directories(box.root / "etc/kiv");
    EXPECT_EQ(State(StartAnew()), "chosen=9");
}

// With the square of its length this would not end in time.
TEST_F(LayerList, ALongListIsReadInLinearTime)
{
    std::string lines;
    for (int i = 0; i < 400000; ++i) lines += "/srv/kiv/" + std::to_string(i) + "\n";
    EXPECT_EQ(KivSettingLayerListFile(lines + lines).Layers().size(), 400000U);
}

TEST_F(LayerList, ALayerThatCannotBeReadIsClosedUnlessSomethingIsKnown)
{
    const auto file = box.File("site");
    const auto away = box.root / "away";
    struct Case {
        const char* words;
        std::function<void()> spoil;
    };
    std::vector<Case> cases{
        {"is away", [&] { std::filesystem::rename(box.root / "site", away); }},
        {"a directory stands in place", [&] { std::filesystem::create_directories(file); }},
        {"is damaged", [&] { box.Write(file, "lock int Ruler = 1\nlo@ck Grid\n"); }},
        {"ends within a line", [&] { box.Write(file, "lock int Ruler = 1\nlock Gr"); }},
        {"is empty", [&] { box.Write(file, ""); }},
    };
    if (geteuid() == 0) {
        cases.push_back({"a link of the user", [&] {
                             std::filesystem::create_symlink(box.File("chosen"), file);
                             ASSERT_EQ(lchown(file.c_str(), 65534, 65534), 0);
                         }});
    }
    for (const auto& [words, spoil] : cases) {
        SCOPED_TRACE(words);
        std::filesystem::remove_all(file);
        box.Write(file, kSite);
        box.Write(list, site + "\n");
        KivSettingRepository& running = StartAnew();
        ASSERT_EQ(State(running), "site=1");
        std::filesystem::remove_all(file);
        spoil();
        std::filesystem::rename(box.root / "cache", box.root / "kept");
        running.Refresh();
        EXPECT_EQ(State(running), "site=1") << "from memory";
        std::filesystem::rename(box.root / "kept", box.root / "cache");
        EXPECT_EQ(State(box.Reopen()), "site=1") << "from the copy";
        EXPECT_EQ(State(StartAnew()), "site=0*") << "closed at the default";
        EXPECT_NE(Reason().find(words), std::string::npos) << Reason();
        EXPECT_NE(Reason().find("closed until it can be read"), std::string::npos) << Reason();
        box.Write(list, "optional " + site + "\n");
        EXPECT_EQ(State(StartAnew()), "=7") << "an optional one is absent";
        if (std::filesystem::exists(away)) std::filesystem::rename(away, box.root / "site");
    }

    // A share that is not mounted looks like an empty directory; a file that says nothing withdraws the
    // layer.
    std::filesystem::remove_all(file);
    box.Write(file, kSite);
    box.NameLayers({"site"});
    StartAnew();
    std::filesystem::remove(file);
    for (int start = 0; start < 2; ++start) EXPECT_EQ(State(box.Reopen()), "site=1") << start;
    box.Write(file, "# kivsettings 1\n");
    EXPECT_EQ(State(box.Reopen()), "=7");
    std::filesystem::remove(file);
    EXPECT_EQ(State(StartAnew()), "=7") << "of which nothing was ever known";
}

TEST_F(LayerList, WhatARunningProgramKnowsOutlivesItsDescriptors)
{
    KivSettingRepository& running = StartAnew();
    std::filesystem::remove_all(box.root / "cache");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{0, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    running.Refresh();
    const std::string here = State(running);
    KivSettingRepository::SetEditedLayer(KivUnicodeString((box.root / "team").string()));
    KivSettingInfo info; // of a layer that the list does not name: it stands alone
    KivSettingRepository::GetRepository("DraftingOptions")->GetInfo("Ruler", &info, 0);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(here, "site=1");
    EXPECT_FALSE(info.locked);
}

TEST_F(LayerList, CopiesStandWhereNobodyElseChooses)
{
    const KivUnicodeString own = KivSettingLayers::SetSystemFile("/etc/kiv/layers");
    const KivUnicodeString place = KivSettingLayers::Cache(true), chosen = KivSettingLayers::Cache(false);
    box.SetVariable("XDG_CACHE_HOME", "/elsewhere");
    box.SetVariable("HOME", "/elsewhere");
    EXPECT_EQ(KivSettingLayers::Cache(true), place);
    EXPECT_NE(KivSettingLayers::Cache(false), chosen);
    KivSettingLayers::SetSystemFile(own);
}

} // namespace

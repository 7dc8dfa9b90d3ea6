#include "ToolFixture.h"

#include "KivDrwCatalogue.h"
#include "KivDrwWorkbench.h"
#include "Settings/KivSettingLine.h"

namespace {

constexpr auto Bytes = &KivSettingsSandbox::Bytes;

TEST_F(ToolTest, ListsEverySettingAndFilters)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "lock int Ruler = 1\nint ViewName = 0\n");
    box.Write(box.File("user"), "double RotSnapAngle = 30\nint Foreign = 1\n");
    const ToolRun all = Run("list");
    EXPECT_EQ(static_cast<std::size_t>(std::count(all.out.begin(), all.out.end(), '\n')),
              KivDrwCatalogue::Entries().size());
    Expect("list --locked", 0, "Ruler\tint\t1\t0\tsite\tsite\tGeneral\n");
    Expect("list --changed --page general", 0,
           "Ruler\tint\t1\t0\tsite\tsite\tGeneral\nRotSnapAngle\tdouble\t30\t15\tuser\t-\tGeneral\n");
    Expect("list --all 'Fo*' ViewName", 0,
           "ViewName\tint\t0\t1\tsite\t-\tLayout\nForeign\tint\t1\t-\tuser\t-\t-\n");
    Expect("list 'Nothing*'", 2, "", "no setting fits");
    Expect("list --page Nowhere", 2, "", "the pages are General");
    Expect(
        "list --json RotSnapAngle", 0,
        "[\n{\"key\": \"RotSnapAngle\", \"type\": \"double\", \"value\": 30, \"default\": 15, \"kind\": "
        "\"angle in degrees\", "
        "\"minimum\": 1, \"maximum\": 355, \"origin\": \"user\", \"initial\": false, \"layer\": \"user\", "
        "\"file\": \"" +
            Path("user") +
            "\", \"line\": 1, \"locked\": false, \"lockLayer\": null, \"lockFile\": null, \"lockLine\": 0, "
            "\"page\": \"General\"}\n]\n");
}

TEST_F(ToolTest, QuotesWhatCouldBeTakenForSomethingElse)
{
    Expect("set DrwGVSXmlTrel=$'a\\tb\\xff'", 0, "");
    Expect("get DrwGVSXmlTrel", 0, "\"a\\tb\\xff\"\n");
    EXPECT_NE(Run("get --json DrwGVSXmlTrel").out.find("\"value\": \"a\\u0009b\\ufffd\""), std::string::npos);
    Expect("set 'DrwGVSXmlTrel= plain \"text\" '", 0, "");
    Expect("get DrwGVSXmlTrel", 0, " plain \"text\" \n");
}

TEST_F(ToolTest, ComparesOwnValuesLocksAndFiles)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "int Ruler = 1\nlock ViewName\n");
    Expect("diff", 0, "");
    Expect("set Ruler=0", 0, "");
    Expect("diff", 1, "--- what applies without them\n+++ the own values\n-int Ruler = 1\n+int Ruler = 0\n");
    Expect("diff --layer $root/site", 1,
           "--- what applies without them\n+++ the own values\n-int Ruler = 0\n+int Ruler = 1\n-int ViewName "
           "= 1\n+lock int ViewName = 1\n");
    Expect("diff --json", 1,
           "[\n{\"key\": \"Ruler\", \"before\": 1, \"after\": 0, \"lockedBefore\": false, \"lockedAfter\": "
           "false}\n]\n");
    const std::string site = Path("site"), user = Path("user");
    Expect("diff " + site + " " + user, 1,
           "--- " + site + "\n+++ " + user + "\n-int Ruler = 1\n+int Ruler = 0\n-lock ViewName\n");
    Expect("diff " + site + " " + site, 0, "");
    Expect("diff " + site, 2, "", "two files");
    Expect("diff $root/none " + site, 3, "", "no such file");
}

// An administrator gives and locks what a first start has written: nobody has anything to do.
TEST_F(ToolTest, FindsNothingOnAHealthySeat)
{
    if (geteuid() != 0) GTEST_SKIP() << "what a mere user owns binds nobody, and is told each time";
    std::string layer = "# kivsettings 1\n", user = layer;
    for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries()) {
        std::string line;
        KivAppendSettingLine(line, {KivString(entry.key), {.value = entry.makeDefault()}});
        line += "\n";
        layer += "lock " + line;
        user += "initial " + line;
    }
    box.NameLayers({"site"});
    box.Write(box.File("site"), layer);
    box.Write(box.File("user"), user);
    Expect("check", 0, "", "nothing is wrong in 2 files");
}

TEST_F(ToolTest, MendsADamagedFile)
{
    if (geteuid() != 0) GTEST_SKIP() << "what a mere user owns binds nobody, and is told each time";
    const std::string damaged =
        "# kivsettings 1\r\n# mine\r\nint Ruler = 1\r\nint GenDim = x\r\nmatrix Foreign = 1\r\nrubbish";
    box.NameLayers({});
    box.Write(box.File("user"), damaged);
    const ToolRun run = Run("check --mend");
    EXPECT_EQ(run.code, 1) << run.out; // what this version does not know stays, and is named
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 1) << run.out;
    EXPECT_EQ(Bytes(Path("user") + ".damaged-1"), damaged);
    const std::string mended = Bytes(Path("user"));
    EXPECT_TRUE(mended.starts_with(
        "# kivsettings 1 sealed\r\n# mine\r\nint Ruler = 1\r\nmatrix Foreign = 1\r\n# kivsettings seal "))
        << mended;
    Expect("check --mend", 1, run.out);
    EXPECT_EQ(Bytes(Path("user")), mended);

    // A layer's: the lock that can be read holds.
    box.Write(box.File("site"), "lock int Ruler = zero\nint ViewName = 0\n");
    Run("check --layer $root/site --mend");
    EXPECT_TRUE(Bytes(Path("site"))
                    .starts_with("# kivsettings 1 sealed\nlock Ruler\nint ViewName = 0\n# kivsettings seal "))
        << Bytes(Path("site"));

    box.Write(box.File("user"), "# kivsettings 9\nrubbish\n");
    Expect("check --mend", 3, "", "another version");
    EXPECT_EQ(Bytes(Path("user")), "# kivsettings 9\nrubbish\n");
}

TEST_F(ToolTest, ChecksEveryLineOfEveryLayer)
{
    if (geteuid() != 0) GTEST_SKIP() << "what a mere user owns binds nobody, and is told each time";
    box.NameLayers({"company", "site"});
    box.Write(box.File("company"), "lock int Ruler = 1\nlock Rulr\nlock Gen*\nint ORunCre = 1\n");
    box.Write(box.File("site"), "\n\n\n\n\n\n\nlock int ViewFrame = 1\n");
    Run("list"); // keeps the copy
    box.Write(box.File("site"),
              "lock Ruler\nint Ruler = 0\nfloat ViewName = 1\nint ViewName = 2\nlock Nothing*\nrubbish\n"
              "matrix Foreign = 1\nlock int ViewFrame = 1\nint GenDim = 1\nlock int GenDimAnal = 1\n"
              "lock GenD*\n");
    box.Write(box.File("user"), "lock int ViewFrame = 0\nint Foreign = 1\ninitial int ORunCre = 0\n");
    const std::string company = Path("company"), site = Path("site"), user = Path("user");
    const std::pair<std::string, const char*> expected[] = {
        {company + ":2: Rulr: ", "did you mean Ruler?"},
        {site + ": ", "damaged"},
        {site + ":1: Ruler: ", "the lock has no effect: layer \"company\""},
        {site + ":2: Ruler: ", "the value is not used: layer \"company\""},
        {site + ":3: ViewName: ", "the value is of the type float instead of int"},
        {site + ":4: ViewName: ", "the key stands in line 3 too"},
        {site + ":4: ViewName: ", "the value is out of range (switch: 0 to 1)"},
        {site + ":5: Nothing*: ", "no effect"},
        {site + ":6: ", "the line is not used"},
        {site + ":7: Foreign: ", "the type is unknown"},
        {site + ":9: GenDim: ", "line 3) locks it"},
        {site + ":10: GenDimAnal: ", "neither lock nor value have an effect: layer \"company\""},
        {site + ":11: GenD*: ", "the lock has no effect: layer \"company\""},
        {user + ":1: ViewFrame: ", "binds nobody"},
        {user + ":1: ViewFrame: ", "line 8) locks it"},
        {user + ":2: Foreign: ", "no setting of this name"},
    };
    const ToolRun run = Run("check");
    EXPECT_EQ(run.code, 1);
    std::istringstream lines(run.out);
    std::string line;
    for (const auto& [location, message] : expected) {
        std::getline(lines, line);
        EXPECT_TRUE(line.starts_with(location) && line.find(message) != std::string::npos)
            << line << "\n"
            << location << message;
    }
    EXPECT_FALSE(std::getline(lines, line)) << line;
    EXPECT_EQ(Run("check --layer $root/company").out, run.out.substr(0, run.out.find('\n') + 1));
    EXPECT_NE(Run("check --json")
                  .out.find("{\"kind\": \"no effect\", \"file\": \"" + company +
                            "\", \"line\": 2, \"key\": \"Rulr\""),
              std::string::npos);

    std::filesystem::permissions(box.root / "site", std::filesystem::perms::all);
    EXPECT_NE(Run("check").out.find("not enforced: every user may write to it; \"chmod o-w\""),
              std::string::npos);
    std::filesystem::remove(user);
    std::filesystem::create_directories(user);
    EXPECT_EQ(Run("check").code, 3);

    std::filesystem::remove_all(user);
    box.Write(company, "lock int Ruler = 1\n");
    box.NameLayers({"company"});
    Expect("check", 0, "", "nothing is wrong in 1 file");
    box.Write(box.root / "layers", (box.root / "company").string() + "\nrelative\n");
    const std::string damaged = Run("check").out, layers = (box.root / "layers").string();
    EXPECT_TRUE(damaged.starts_with(layers + ": the list of layers is damaged; this machine's copy") &&
                damaged.ends_with(layers + ":2: the line is no absolute path\n"))
        << damaged;
    Expect("seal --list", 3, "", "the list of layers is damaged");
    box.Write(box.root / "layers", KivSettingSeal::Put((box.root / "company").string() + "\n") + "\n");
    EXPECT_NE(Run("check").out.find("\"kivsettings seal --list --system-layers " + layers + "\" accepts"),
              std::string::npos);
    Expect("seal --list", 0, "");
    Expect("check", 0, "", "nothing is wrong in 1 file");
    Expect("seal --list --layer $root/company", 2, "", "--layer DIR, or --list");
    box.NameLayers({"company", "away"});
    EXPECT_NE(Run("check").out.find("is away; its settings are closed until it can be read"),
              std::string::npos);
    box.SetVariable("KivAdminSettingsPath", (box.root / "company").string());
    EXPECT_NE(Run("check --system-layers none").out.find("locks are not enforced: KivAdminSettingsPath"),
              std::string::npos);
}

TEST_F(ToolTest, FindsNothingWrongWithAFirstStart)
{
    KivDrwOptionsServices::InitOptionsOnDisk();
    if (geteuid() == 0) Expect("check", 0, "", "nothing is wrong in 1 file");
    Expect("list --changed", 0, "KivDrwQmtAnnotLay\tint\t4\t0\tinitial\t-\tView\n");
}

TEST_F(ToolTest, LookingCreatesNoSettingsFile)
{
    std::filesystem::remove_all(box.root / "user");
    Run("list; kivsettings get Ruler; kivsettings where Ruler; kivsettings diff; kivsettings export; "
        "kivsettings check; "
        "kivsettings unset Ruler; kivsettings reset General; kivsettings import --dry-run $root/layers");
    EXPECT_FALSE(std::filesystem::exists(box.root / "user"));
}

TEST_F(ToolTest, SaysWhyItCannotReadSaveOrPrint)
{
    std::filesystem::create_directories(box.File("user"));
    Expect("get Ruler", 3, "0\n", "a directory stands in place of the file");
    for (const char* command : {"set Ruler=1", "unset Ruler", "reset General"})
        Expect(command, 3, "", "a directory stands in place of the file");
    EXPECT_TRUE(std::filesystem::is_directory(box.File("user")));

    box.SetVariable("KivUserSettingsPath", "/proc/kiv");
    Expect("get Ruler", 0, "0\n");
    Expect("set Ruler=1", 3, "", "the settings were not saved");
    box.SetVariable("KivUserSettingsPath", (box.root / "user").string());
    std::filesystem::remove_all(box.File("user"));

    Expect("list >/dev/full", 3, "", "cannot be written: No space left");
    Expect("get Ruler >&-", 3, "", "cannot be written");
    // A closed output must not make the settings file take its place.
    Expect("set Ruler=1 >&- 2>&- <&-", 0, "");
    EXPECT_EQ(User(), "int Ruler = 1\n");
    EXPECT_EQ(Shell("(sleep 0.2; kivsettings list; echo $? >&2) | true").err,
              "kivsettings: the output cannot be written: Broken pipe\n3\n");
}

TEST_F(ToolTest, WatchesOtherProcessesUntilItIsTold)
{
    box.NameLayers({"site"});
    std::filesystem::create_directories(box.root / "site");
    std::filesystem::remove_all(box.root / "user"); // made by the first save
    const std::string wait = "until_lines() { for i in $(seq 500); do [ $(wc -l <$root/seen) -ge $1 ] && "
                             "return; sleep 0.01; done; }; ";
    const ToolRun run = Shell(
        wait + "'" KIV_TOOL "' --system-layers $root/layers watch Ruler 'View*' >$root/seen & watcher=$!\n"
               "sleep 0.3; kivsettings set Ruler=1 RotSnapAngle=30; until_lines 1\n"
               "kivsettings set ViewName=0; until_lines 2; kivsettings lock --layer $root/site Ruler=0; "
               "until_lines 3\n"
               "kill -TERM $watcher; wait $watcher");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(box.Bytes(box.root / "seen"), "Ruler\t1\t-\nViewName\t0\t-\nRuler\t0\tsite\n");
    // Nobody reads: it ends by itself.
    EXPECT_EQ(Shell("(timeout 20 '" KIV_TOOL "' watch; echo $? >&2) | true").err, "0\n");
}

} // namespace

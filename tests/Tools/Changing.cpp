#include "ToolFixture.h"

namespace {

TEST_F(ToolTest, SetsSeveralKeysInOneSaveAndKeepsTheRestOfTheFile)
{
    box.Write(box.File("user"), "# kivsettings 1\n# mine\nint Ruler = 0\nint Foreign = 3\n");
    Expect("set Ruler=1 RotSnapAngle=22.5 Drw_settings_ColorSmartPick=0x00ff00", 0, "");
    EXPECT_EQ(User(), "# mine\nint Ruler = 1\nint Foreign = 3\ndouble RotSnapAngle = 22.5\n"
                      "unsigned Drw_settings_ColorSmartPick = 65280\n");
    Expect("get RotSnapAngle Ruler 'Drw_settings_ColorSmart*'", 0, "22.5\n1\n65280\n");
    Expect("unset Ruler", 0, "");
    Expect("reset geometry General", 0, "");
    EXPECT_EQ(User(), "# mine\nint Foreign = 3\n");
}

TEST_F(ToolTest, ChangesNothingWhenAnyValueIsMalformed)
{
    Expect("set ViewName=0", 0, "");
    const std::string before = User();
    const std::pair<const char*, const char*> faults[] = {
        {"Rulr=1", "did you mean Ruler?"},
        {"Ruler=2", "out of range (switch: 0 to 1)"},
        {"Ruler=", "no number of its type (int)"},
        {"Ruler=1.0", "no number of its type (int)"},
        {"Ruler=99999999999", "does not fit its type"},
        {"RotSnapAngle=nan", "not finite"},
        {"RotSnapAngle=1,5", "no number of its type (double)"},
        {"RotSnapAngle=356", "1 to 355"},
        {"DrwSkinThickness=7", "0 to 6"},
        {"DrwSkinThickness=-1", "no number of its type (unsigned)"},
        {"Drw_settings_ColorSmartPick=0x1000000", "no number"},
        {"Foreign=1", "there is no setting"},
        {"ViewScale", "write KEY=VALUE"},
        {"ViewFrame=1", "the key stands twice"},
    };
    for (const auto& [fault, words] : faults)
        Expect(std::string("set ViewFrame=0 '") + fault + "'", 2, "", words);
    EXPECT_EQ(User(), before);
    Expect("set --force Foreign=1", 2, "", "say its type");
    Expect("set --force '1x=1' --type int", 2, "", "cannot be a key");
    Expect("set --force --type int Foreign=1", 0, "");
    Expect("get --force Foreign", 0, "1\n");
}

TEST_F(ToolTest, StoresWhatIsAllowedAndNamesEachLockedKeyAndItsLocker)
{
    box.NameLayers({"site"});
    std::filesystem::create_directories(box.root / "site");
    Expect("lock --layer $root/site Ruler=1 ViewName", 0, "");
    EXPECT_EQ(box.Saved(box.File("site")), "lock int Ruler = 1\nlock ViewName\n");

    const ToolRun run = Run("set ViewScale=0 Ruler=0 ViewFrame=0 ViewName=0");
    EXPECT_EQ(run.code, 1);
    const KivSettingRepository& repository = KivSettingsSandbox::Reopen();
    for (const char* key : {"Ruler", "ViewName"}) {
        KivSettingInfo info;
        repository.GetInfo(key, &info, 0);
        const std::string words = std::string(key) + ": " + info.Message().ConvertToChar() + "\n";
        EXPECT_NE(run.err.find("kivsettings: " + words), std::string::npos) << run.err;
        Expect(std::string("where ") + key, 0, words); // the padlock's words
    }
    EXPECT_EQ(User(), "int ViewScale = 0\nint ViewFrame = 0\n");

    Expect("unlock --layer $root/site '*'", 0, "");
    EXPECT_EQ(box.Saved(box.File("site")), "int Ruler = 1\n");
    Expect("set Ruler=0", 0, "");
}

TEST_F(ToolTest, AnInnerLayerCannotTouchWhatAnOuterOneLocks)
{
    box.NameLayers({"company", "site"});
    box.Write(box.File("company"), "lock int Ruler = 1\n");
    box.Write(box.File("site"), "int ViewName = 0\n");
    Expect("set --layer $root/site Ruler=0 ViewScale=0", 1, "", "in layer \"company\"");
    Expect("lock --layer $root/site Ruler=0", 1, "", "in layer \"company\"");
    Expect("unlock --layer $root/site Ruler", 1, "", "in layer \"company\"");
    EXPECT_EQ(box.Saved(box.File("site")), "int ViewName = 0\nint ViewScale = 0\n");
    Expect("lock Ruler", 2, "", "--layer DIR");
    Expect("set --layer $root/typo Ruler=0", 3, "", "not there");
}

TEST_F(ToolTest, LocksAllThatBeginsSoByOneLine)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "# ours\n");
    Expect("lock --layer $root/site 'Dim*' '*Snap*On' Ruler", 0, "");
    EXPECT_EQ(box.Saved(box.File("site")),
              "# ours\nlock DrwTextSnappingOn\nlock DrwTextLeadSnappingOn\nlock DrwGDTSnappingOn\n"
              "lock Ruler\nlock Dim*\n");
    Expect("set DimCircle=1", 1, "", "line 7");
    Expect("unlock --layer $root/site DimCircle", 1, "", "unlock it as it stands there");
    Expect("lock --layer $root/site 'Nothing*'", 2, "", "no setting fits");
    EXPECT_EQ(Run("export --layer $root/site").out, KivSettingSeal::Put({}));
    Expect("unlock --layer $root/site 'D*' Ruler ViewName", 0, "");
    EXPECT_EQ(box.Saved(box.File("site")), "# ours\n");
    box.Write(box.root / "other", "lock View*\nlock int Ruler = 1\n");
    Expect("import --dry-run --layer $root/site $root/other", 0,
           "+lock View*\n-int Ruler = 0\n+lock int Ruler = 1\n");
    Expect("import --layer $root/site $root/other", 0, "");
    EXPECT_EQ(box.Saved(box.File("site")), "# ours\nlock View*\nlock int Ruler = 1\n");
}

TEST_F(ToolTest, SealsWhatAnAdministratorHasEdited)
{
    box.NameLayers({"site"});
    Expect("seal", 2, "", "--layer DIR");
    std::filesystem::create_directory(box.root / "site");
    Expect("seal --layer $root/site", 3, "", "there is no such file");
    for (const char* refused : {"", "lock int Ruler = x\n"}) {
        box.Write(box.File("site"), refused);
        Expect("seal --layer $root/site", 3, "", "not saved");
        EXPECT_EQ(box.Bytes(box.File("site")), refused);
    }
    box.Write(box.File("site"), "lock int Ruler = 1\n");
    Expect("seal --layer $root/site", 0, "");
    EXPECT_EQ(box.Saved(box.File("site")), "lock int Ruler = 1\n");
    Expect("seal --layer $root/site", 0, "", "fits already");
    Expect("get Ruler", 0, "1\n");
    Shell("sed -i s/Ruler/Rulr/ '" + Path("site") + "'");
    const std::string command =
        "\"kivsettings seal --layer " + (box.root / "site").string() + "\" accepts it";
    Expect("get Ruler", 0, "1\n", command);
    EXPECT_NE(Run("check").out.find(command), std::string::npos);
    Expect("set --layer $root/site ViewName=0", 3, "", command);
    Expect("seal --layer $root/site", 0, "");
    Expect("get Ruler", 0, "0\n");
}

TEST_F(ToolTest, ExportsWhatDiffersAndImportsIt)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "lock int ViewName = 1\n");
    Expect("set Ruler=1 \"DrwGVSXmlTrel=$(printf 'a\\nb\"')\"", 0, "");
    const std::string exported = "int Ruler = 1\nstring DrwGVSXmlTrel = \"a\\nb\\\"\"\n";
    Expect("export", 0, KivSettingSeal::Put(exported));
    Expect("export >$root/mine", 0, "");
    Expect("import $root/mine", 0, "");

    box.Write(box.root / "other",
              KivSettingSeal::Put(exported) +
                  "int ViewName = 0\nint ViewScale = 0\nint Rulr = 1\nint ViewFrame = 7\nrubbish\n");
    const std::string before = User();
    const ToolRun dry = Run("import --dry-run $root/other");
    EXPECT_EQ(dry.out, "-int ViewScale = 1\n+int ViewScale = 0\n");
    EXPECT_EQ(User(), before);
    const ToolRun run = Run("import - <$root/other");
    for (const ToolRun& each : {dry, run}) {
        EXPECT_EQ(each.code, 1);
        for (const char* said :
             {"ViewName: Locked by the administrator", "did you mean Ruler",
              "ViewFrame: the value is out of range", ":9: the line is no attribute", "seal does not fit"}) {
            EXPECT_NE(each.err.find(said), std::string::npos) << each.err;
        }
    }
    EXPECT_EQ(User(), before + "int ViewScale = 0\n");
    Expect("import --layer $root/site $root/nothing", 3, "", "there is no such file");
    Expect("import $root", 3, "", "a directory stands in place");
}

} // namespace

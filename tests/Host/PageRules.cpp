#include "Base/KivTextCatalogue.h"
#include "Command/KivCommandHeader.h"
#include "Dialog/KivDlgLabel.h"
#include "Disk/KivDirectoryWatch.h"
#include "OptionsPages.h"

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

namespace {

// The special rules of single pages.
using PageRules = OptionsPages;

TEST_F(PageRules, AnySheetSourceButTheCurrentSheetIsTheStyle)
{
    OpenOn("int KivDrwSheetFromStyle = 2\n");
    EXPECT_TRUE(IsChosen("radSheetStyle") && !IsChosen("radSheetCurrent"));
    EXPECT_TRUE(KivUserHand::Choose(Radio("radSheetStyle")));
    EXPECT_EQ(Stored("KivDrwSheetFromStyle", 0), 2) << "it was chosen already";
    EXPECT_TRUE(KivUserHand::Choose(Radio("radSheetCurrent")));
    EXPECT_EQ(Stored("KivDrwSheetFromStyle", 9), 0);
    EXPECT_FALSE(IsChosen("radSheetStyle"));
    EXPECT_TRUE(KivUserHand::Choose(Radio("radSheetStyle")));
    EXPECT_EQ(Stored("KivDrwSheetFromStyle", 9), 1);
}

TEST_F(PageRules, AdministrationGraysItsCommandsAsTheSettingsInForceSay)
{
    const struct {
        const char* row;
        std::vector<const char*> commands;
    } rules[] = {{"checkOnlyUserDefault", {"DrwStyle"}},
                 {"checkAllowUserDefault", {"DrwSetAsDefault", "DrwResetDefaults"}},
                 {"checkBackgroundView", {"KivDrwEditFrame"}}};
    std::vector<KivCommandHeader*> headers;
    for (const auto& [row, commands] : rules)
        for (const char* command : commands) headers.push_back(KivCommandHeader::Declare(command));
    const auto available = [&] {
        std::string names;
        for (const KivCommandHeader* header : headers)
            if (header->IsAvailable()) names += std::string(header->GetName().View()) + " ";
        return names;
    };
    OpenOn("int DrwOnlyUserDefault = 0\nint DrwAllowUserDefault = 0\nint DrwLockBackgroundView = 0\n");
    EXPECT_TRUE(session->Commit().empty());
    const std::string all = available();
    EXPECT_EQ(all, "DrwStyle DrwSetAsDefault DrwResetDefaults KivDrwEditFrame ");
    for (const auto& [row, commands] : rules) {
        // Its name says the opposite of its setting: the value is shown as it is.
        EXPECT_FALSE(IsChecked(row));
        EXPECT_TRUE(KivUserHand::Tick(Check(row)));
        EXPECT_EQ(available(), all) << "not before OK";
        EXPECT_TRUE(session->Commit().empty());
        std::string left = all;
        for (const std::string command : commands) left.erase(left.find(command), command.size() + 1);
        EXPECT_EQ(available(), left);
        EXPECT_TRUE(KivUserHand::Tick(Check(row)));
        session->Cancel();
        EXPECT_EQ(available(), left);
        EXPECT_TRUE(IsChecked(row));
        EXPECT_TRUE(KivUserHand::Tick(Check(row)));
        session->Reset(Page("Administration"));
        EXPECT_EQ(available(), all);
        session->Cancel();
        EXPECT_EQ(available(), left);
        EXPECT_TRUE(KivUserHand::Tick(Check(row)));
        EXPECT_TRUE(session->Commit().empty());
        EXPECT_EQ(available(), all);

        EXPECT_TRUE(KivUserHand::Tick(Check(row)));
        std::filesystem::rename(file, box.root / "aside");
        std::filesystem::create_directory(file);
        EXPECT_FALSE(session->Commit().empty()) << "it cannot be saved";
        EXPECT_EQ(available(), left);
        session->Cancel();
        EXPECT_EQ(available(), all);
        std::filesystem::remove(file);
        std::filesystem::rename(box.root / "aside", file);
    }
}

TEST_F(PageRules, AdministrationSavesAndTakesBackItsOwnKeysAlone)
{
    OpenOn("");
    KivIUserSettings& administration = *Page("Administration").settings.Get();
    const auto change = [&] {
        EXPECT_TRUE(KivUserHand::Tick(Check("checkRuler")));
        EXPECT_TRUE(KivUserHand::Tick(Check("checkOnlyUserDefault")));
    };
    std::string told;
    Repository().AddListener([&](const KivSettingRepository::Keys& keys) {
        for (const KivString& key : keys) told += std::string(key.View()) + " ";
    });
    change();
    administration.CancelModification(nullptr);
    EXPECT_EQ(std::exchange(told, {}), "DrwOnlyUserDefault ");
    EXPECT_EQ(Stored("Ruler", 0) * 10 + Stored("DrwOnlyUserDefault", 0), 10);
    session->Refill();
    EXPECT_TRUE(KivUserHand::Tick(Check("checkOnlyUserDefault")));
    // What another program has stored comes in with the save.
    KivCommandHeader* const background = KivCommandHeader::Declare("KivDrwEditFrame");
    box.Write(file, "int DrwLockBackgroundView = 1\n");
    administration.CommitModification(nullptr);
    EXPECT_FALSE(background->IsAvailable());
    background->BecomeAvailable();
    EXPECT_EQ(std::exchange(told, {}), "DrwOnlyUserDefault DrwLockBackgroundView ");
    EXPECT_EQ(box.Saved(file), "int DrwLockBackgroundView = 1\nint DrwOnlyUserDefault = 1\n");

    // The rest is neither lost nor beyond recall, and what is saved is not taken back.
    EXPECT_TRUE(KivUserHand::Tick(Check("checkOnlyUserDefault")));
    session->Cancel();
    EXPECT_EQ(std::exchange(told, {}), "Ruler DrwOnlyUserDefault ");
    EXPECT_EQ(Stored("Ruler", 0) * 10 + Stored("DrwOnlyUserDefault", 0), 1);
    change();
    EXPECT_TRUE(session->Commit().empty());
    EXPECT_EQ(box.Saved(file), "int DrwLockBackgroundView = 1\nint DrwOnlyUserDefault = 0\nint Ruler = 1\n");
}

TEST_F(PageRules, EachPressOpensAnotherSnapWindowAndAllShowTheSame)
{
    OpenOn("int DrwAnnotSnapMod = 7\n");
    EXPECT_TRUE(Press("pushAnnotActiveSnap"));
    for (const char* radio : {"radioAnnotSnapOnGrid", "radioAnnotSnapOnOrient", "radioAnnotSnapBoth"})
        EXPECT_FALSE(IsChosen(radio));
    EXPECT_TRUE(Press("pushAnnotActiveSnap"));
    ASSERT_EQ(Windows("annotSnap").size(), 2U);
    const auto in = [&](std::size_t window, const char* radio) -> KivDlgRadioButton& {
        return *static_cast<KivDlgRadioButton*>(Windows("annotSnap")[window]->FindDialog(radio));
    };
    const struct {
        std::size_t window;
        const char* radio;
        int mode;
    } choices[] = {
        {0, "radioAnnotSnapBoth", 2}, {1, "radioAnnotSnapOnGrid", 0}, {0, "radioAnnotSnapOnOrient", 1}};
    for (const auto& [window, radio, mode] : choices) {
        EXPECT_TRUE(KivUserHand::Choose(in(window, radio)));
        EXPECT_EQ(Stored("DrwAnnotSnapMod", 9), mode);
        EXPECT_EQ(in(1 - window, radio).GetState(), KivDlgChecked);
    }
    session->Reset(Page("Annotation"));
    EXPECT_EQ(in(0, "radioAnnotSnapOnOrient").GetState(), in(1, "radioAnnotSnapOnOrient").GetState());

    // The first one first, in either way.
    EXPECT_TRUE(KivUserHand::CloseWindow(*Windows("annotSnap")[0]));
    EXPECT_FALSE(KivUserHand::Choose(in(0, "radioAnnotSnapBoth"))) << "it is going";
    KivCommand::DrainDelayedDestruction();
    ASSERT_EQ(Windows("annotSnap").size(), 1U);
    EXPECT_TRUE(KivUserHand::Close(*Windows("annotSnap")[0]));
    KivCommand::DrainDelayedDestruction();
    EXPECT_TRUE(Windows("annotSnap").empty());
    EXPECT_TRUE(Press("pushAnnotActiveSnap")) << "left open at the end";
}

TEST_F(PageRules, APlaceThatDoesNotAnswerIsWaitedForByNobody)
{
    struct Share {
        std::promise<void> answers;
        std::shared_future<void> answered{answers.get_future()};
        std::atomic<int> asked = 0, givenUp = 0;
    };
    const auto share = std::make_shared<Share>();
    const KivDirectoryLooker real = KivSetDirectoryLooker(nullptr);
    KivSetDirectoryLooker([real, share](const KivUnicodeString& path, bool withNames) {
        if (path.View().find("/share/") != std::string_view::npos) {
            ++share->asked;
            share->givenUp += share->answered.wait_for(std::chrono::seconds(20)) != std::future_status::ready;
        }
        return real(path, withNames);
    });
    const std::string away = (box.root / "share").string(), here = (box.root / "here").string();
    for (const std::string& root : {away, here})
        std::filesystem::create_directories(root + "/VBScript/FrameTitleBlock");
    box.Write(away + "/generativeparameters/Style.xml", "");
    box.SetVariable("KivInstallPath", away + ":" + here);
    box.SetVariable("KivCollectionStandard", away);

    OpenOn("int DrwPreventGVS = 0\n");
    auto& field = Node<KivDlgEditor>("editorTitleBlockPath_dialog");
    EXPECT_EQ(field.GetText(), (here + "/VBScript/FrameTitleBlock").c_str());
    EXPECT_EQ(Combo("chkGVSXml").GetLineCount(), 0);
    EXPECT_TRUE(KivUserHand::Type(field, (away + "/VBScript").c_str()));
    for (int i = 0; i < 3; ++i) session->Refill();
    EXPECT_EQ(share->asked, 3) << "once for each path";
    EXPECT_EQ(share->givenUp, 0);
    auto& label = Node<KivDialog>("labelTitleBlockMissing");
    EXPECT_TRUE(label.IsShown());
    EXPECT_NE(field.GetHelp().View().find("not known yet"), std::string_view::npos);
    EXPECT_TRUE(KivDirectoryWatch::Drain()) << "an answer is awaited";

    share->answers.set_value();
    while (KivDirectoryWatch::Drain()) std::this_thread::yield();
    EXPECT_EQ(field.GetDirectoryState(), KivDirectoryState::There);
    EXPECT_FALSE(label.IsShown());
    const KivUnicodeString usual = field.GetHelp();
    for (const std::string& missing : {away + "/away", away + "/generativeparameters/Style.xml"}) {
        EXPECT_TRUE(KivUserHand::Type(field, missing.c_str()));
        while (KivDirectoryWatch::Drain()) std::this_thread::yield();
        EXPECT_TRUE(label.IsShown());
        EXPECT_FALSE(field.GetHelp() == usual) << "who hears the page is told too";
        EXPECT_EQ(Stored("DrwFrameAndTitleBlockPath", KivUnicodeString()), missing.c_str()) << "kept";
    }
    for (int i = 0; i < 500 && Combo("chkGVSXml").GetLineCount() == 0; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        session->Refill();
    }
    EXPECT_EQ(Combo("chkGVSXml").GetLineCount(), 1);
    KivSetDirectoryLooker(real);
}

TEST_F(PageRules, GenerationWritesAllItsKeysInItsOwnOrder)
{
    Open();
    EXPECT_TRUE(IsChecked("checkGenDimAnal"));
    for (const char* check : {"checkGenDim", "checkGenDimFilter", "checkGenDimAutoPos",
                              "checkGenDimAutoTrans", "checkGenDimFromPart", "checkGenBalloonByInstance"})
        EXPECT_FALSE(IsChecked(check)) << check;
    EXPECT_TRUE(KivUserHand::Tick(Check("checkGenDim")));
    EXPECT_TRUE(session->Commit().empty());
    const std::string bytes = box.Bytes(file);
    std::size_t last = 0;
    for (const char* line : {"int GenBalloonByInstance = 0", "int GenDim = 1", "int GenDimFilter = 0",
                             "int GenDimAutoPos = 0", "int GenDimAutoTrans = 0", "int GenDimAnal = 1",
                             "int DrwGenDimFromPart = 0", "int GenDimSemiAutoTimeOut = 2"}) {
        const std::size_t position = bytes.find(line);
        ASSERT_NE(position, std::string::npos) << line;
        EXPECT_GT(position, last) << line;
        last = position;
    }
}

TEST_F(PageRules, OnlyExactViewsHaveDimensionsToGenerate)
{
    for (const int mode : {0, 1, 2, 3, -5}) {
        OpenOn("int DrwGenerationModeVal = " + std::to_string(mode) + "\n");
        for (const char* row :
             {"checkGenDim", "checkGenDimFilter", "checkGenDimAutoPos", "checkGenDimAutoTrans",
              "checkGenDimAnal", "checkGenDimFromPart", "spinnerGenDimSemiAuto"}) {
            EXPECT_EQ(Control(row).IsEnabled(), mode == 0) << row;
            EXPECT_EQ(Control(row).WhyDisabled().IsEmpty(), mode == 0) << row;
        }
        // Deliberate.
        EXPECT_TRUE(Control("checkGenBalloonByInstance").IsEnabled());
        EXPECT_TRUE(Spinner("spinnerGenDimSemiAuto").GetLabel()->IsEnabled());
    }
    const int exact = 0;
    Repository().WriteSetting("DrwGenerationModeVal", &exact, 1, 0);
    EXPECT_FALSE(Control("checkGenDim").IsEnabled()) << "the page looks only when it is filled";
    session->Refill();
    EXPECT_TRUE(Control("checkGenDim").IsEnabled());
}

TEST_F(PageRules, WithoutAnyTextNamesAreShown)
{
    KivTextCatalogue::SetResourceRoot(KivUnicodeString((box.root / "nowhere").string()));
    OpenOn("int DrwGenerationModeVal = 3\n");
    for (const char* button : {"linetypePushButton", "pushRasterOptions"}) EXPECT_TRUE(Press(button));
    const auto visit = [](auto&& self, const KivDialog& node) -> void {
        if (node.IsAKindOf(KivDlgCombo::Name)) {
            const auto& combo = static_cast<const KivDlgCombo&>(node);
            KivUnicodeString line;
            for (int i = 0; combo.GetLine(line, i); ++i)
                EXPECT_FALSE(line.IsEmpty()) << node.GetName().View();
        }
        EXPECT_FALSE(node.IsAKindOf(KivDlgDialog::Name) && node.GetTitle().IsEmpty());
        for (const KivDialog* child : node.Children()) self(self, *child);
    };
    visit(visit, session->Root());
    session.reset();
    KivTextCatalogue::SetResourceRoot("");
}

TEST_F(PageRules, StyleFilesComeFromTheDisk)
{
    OpenOn("int DrwPreventGVS = 0\nstring DrwGVSXmlTrel = \"Mine.xml\"\n");
    EXPECT_EQ(Combo("chkGVSXml").GetLineCount(), 0);
    EXPECT_EQ(Stored("DrwGVSXmlTrel", KivUnicodeString()), "Mine.xml") << "kept though it is not there";

    const std::string missing = (box.root / "missing").string(), file1 = (box.root / "afile").string();
    box.Write(box.root / "afile" / "generativeparameters", "no directory");
    for (const char* name : {"Zeta.xml", "alpha.XML", "notes.txt", "Mine.Xml", ".xml", "xml", "Ümlaut.xml",
                             "a \"b\" \\c.xml", "new\nline.xml", "not\xff\xfeUTF8.xml"})
        box.Write(box.root / "site" / "generativeparameters" / name, "");
    std::filesystem::create_directory(box.root / "site" / "generativeparameters" / "dir.xml");
    for (const char* name : {"Style9.xml", "Style10.xml", "Zeta.xml"})
        box.Write(box.root / "default" / "generativeparameters" / name, "");
    box.SetVariable("KivCollectionStandard", missing + ":" + file1 + ":" + (box.root / "site").string());
    box.SetVariable("KivDefaultCollectionStandard", (box.root / "default").string());
    Open();
    KivDlgCombo& combo = Combo("chkGVSXml");
    EXPECT_GE(combo.GetLineCount(), 7);
    EXPECT_EQ(combo.GetSelect(), -1) << "names differ by their case";
    KivUnicodeString before, line;
    int zetas = 0;
    for (int i = 0; combo.GetLine(line, i); ++i, before = line) {
        EXPECT_TRUE(i == 0 || before < line) << line.View();
        zetas += line == "Zeta.xml";
        EXPECT_NE(line, "notes.txt");
    }
    EXPECT_EQ(zetas, 1);
    // What is chosen already is not written again; and a style is nobody's choice while styles are prevented.
    Repository().ResetToAdminValues(std::vector<const char*>{"DrwPreventGVS"}.data(), 1);
    session->Refill();
    EXPECT_FALSE(Combo("chkGVSXml").IsEnabled());
    EXPECT_FALSE(Combo("chkGVSXml").WhyDisabled().IsEmpty());
    EXPECT_GE(Combo("chkGVSXml").GetLineCount(), 7);
}

} // namespace

#include "Base/KivTextCatalogue.h"
#include "Common/SettingsWatch.h"
#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivUserHand.h"
#include "KivDrwWorkbench.h"
#include "Native/NativePiece.h"
#include "Native/NativeSpinner.h"
#include "Options/OptionsWindow.h"
#include "Parameter/KivParmEngine.h"
#include "Parameter/KivParmMagnitude.h"
#include "Program/CommandLine.h"
#include "Program/DraftingMessages.h"
#include "Program/DraftingPictures.h"
#include "Program/DraftingStart.h"
#include "Program/DraftingTree.h"
#include "Program/DraftingWelcome.h"
#include "Program/DraftingWindow.h"
#include "Sheet/SheetSettings.h"
#include "Sheet/SheetView.h"
#include "Support/KivSettingsSandbox.h"

#include <QAction>
#include <QComboBox>
#include <QProcess>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

// What is behind the window of the program.
struct Program {
    KivDrwDraftingSettings drafting;
    SheetSettings settings{drafting, *KivDrwSketcherSettings::GetSketcherSettings()};
    DraftingDiagnostics diagnostics{false};
    DraftingWindow window{settings, diagnostics, {}};
};

class SheetProgram : public testing::Test {
protected:
    // Ends with this code, or -1 when the window would open.
    int Prepare(std::vector<std::string> arguments)
    {
        out.str({});
        err.str({});
        return DraftingStart::Prepare(CommandLine::Parse(arguments), out, err).value_or(-1);
    }
    bool Erred(const char* words) const { return err.str().find(words) != std::string::npos; }

    KivSettingsSandbox box;
    std::ostringstream out, err;
};

TEST_F(SheetProgram, AWrongCommandLineIsExplained)
{
    const fs::path file = box.root / "file";
    box.Write(file, "");
    struct Case {
        std::vector<std::string> arguments;
        const char* said;
    };
    for (const Case& c :
         {Case{{"--pages", "General"}, "--pages"}, Case{{"drawing"}, "drawing"},
          Case{{"--page"}, "--page needs"}, Case{{"--page", "--help"}, "--page needs"},
          Case{{"--language="}, "--language needs"}, Case{{"--help=yes"}, "--help takes no"},
          Case{{"--scale", "0"}, "0.5 to 8"}, Case{{"--scale", "nan"}, "0.5 to 8"},
          Case{{"--scale=2x"}, "0.5 to 8"}, Case{{"--scheme=blue"}, "light"},
          Case{{"--language", "Klingon"}, "English"}, Case{{"--length-unit", "stone"}, "F_I_F16"},
          Case{{"--length-unit", "DEGREE"}, "MM"}, Case{{"--admin", file.string()}, "no directory"},
          Case{{"--page", "Nowhere"}, "General"}}) {
        EXPECT_EQ(Prepare(c.arguments), 2) << c.said;
        EXPECT_TRUE(Erred(c.said)) << c.said << " in: " << err.str();
        EXPECT_EQ(out.str(), "");
    }
    EXPECT_EQ(Prepare({"--help"}), 0);
    for (const CommandLine::Option& option : CommandLine::Options())
        EXPECT_NE(out.str().find(std::string("--") + option.name), std::string::npos);
    EXPECT_EQ(Prepare({"--version"}), 0);
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(Prepare({"--page=general", "--length-unit", "in", "--scheme", "dark"}), -1) << err.str();
    KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, "MM");

    fs::create_directory(box.root / "layer");
    KivSettingRepository::ForgetAll();
    EXPECT_EQ(Prepare({"--admin", (box.root / "layer").string(), "--page", "General"}), -1) << err.str();
    EXPECT_TRUE(box.Names("layer").empty()) << "a layer that is only looked at is not filled with defaults";
}

TEST_F(SheetProgram, TheSheetFollowsOkAndGoesBackOnCancel)
{
    ASSERT_EQ(Prepare({}), -1);
    Program program;
    DraftingWindow& window = program.window;
    window.show();
    auto* const tree = window.findChild<DraftingTree*>();
    QTreeWidgetItem* const parameters = tree->ViewItem()->child(0);
    const auto tick = [&] {
        KivDialog& page = *window.Options().Current()->Session()->FindPage("General")->frame.Get();
        return KivUserHand::Tick(*static_cast<KivDlgCheckButton*>(page.FindDialog("checkGrid_dialog"))).done;
    };

    window.OpenOptions("General");
    OptionsWindow* const first = window.Options().Current();
    window.OpenOptions();
    EXPECT_EQ(window.Options().Current(), first) << "one at a time";
    ASSERT_TRUE(tick());
    first->accept();
    EXPECT_FALSE(program.settings.Style().grid);
    EXPECT_EQ(window.Options().Current(), nullptr);

    window.OpenOptions("General");
    ASSERT_TRUE(tick());
    KivDrwSketcherSettings::GetSketcherSettings()->GridModify(); // as if a page told the sheet meanwhile
    EXPECT_TRUE(program.settings.Style().grid);
    window.close();
    EXPECT_EQ(window.Options().Current(), nullptr);
    EXPECT_FALSE(program.settings.Style().grid) << "closing the main window cancels";
    EXPECT_FALSE(parameters->isHidden());
}

// Another program replaces the file as ours do; an administrator edits his in place.
TEST_F(SheetProgram, WhatOthersSaveShowsWhileUncommittedChangesStayOnTop)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "int Ruler = 0\n");
    ASSERT_EQ(Prepare({}), -1);
    KivSettingRepository& repository = *KivSettingRepository::GetRepository("DraftingOptions");
    ASSERT_EQ(repository.SaveRepository(nullptr), S_OK);
    Program program;
    DraftingWindow& window = program.window;
    const SettingsWatch watch(repository);
    window.Follow(watch, *KivDrwSketcherSettings::GetSketcherSettings());
    window.show();
    window.OpenOptions("General");
    OptionsWindow& options = *window.Options().Current();
    const auto node = [&](const char* name) {
        return options.Session()->FindPage("General")->frame.Get()->FindDialog(name);
    };
    const auto isTicked = [&](const char* name) {
        return static_cast<KivDlgCheckButton*>(node(name))->GetState() == KivDlgChecked;
    };
    const auto save = [&](const std::string& lines) {
        box.Write(box.root / "user" / "new", box.Bytes(box.File("user")) + lines);
        fs::rename(box.root / "user" / "new", box.File("user"));
    };
    ASSERT_TRUE(isTicked("checkGrid_dialog") && program.settings.Style().grid);
    ASSERT_TRUE(KivUserHand::Tick(*static_cast<KivDlgCheckButton*>(node("checkRotSnapAuto_dialog"))));
    const bool mine = isTicked("checkRotSnapAuto_dialog");
    save("int Drw_settings_GridDisplay = 0\nint RotSnapAuto = " + std::string(mine ? "0\n" : "1\n"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !program.settings.Style().grid; }));
    EXPECT_FALSE(isTicked("checkGrid_dialog"));
    EXPECT_EQ(isTicked("checkRotSnapAuto_dialog"), mine);

    // What is being typed is not taken away; it shows the rest when the field is left.
    auto* const field =
        static_cast<NativeSpinner*>(NativePiece::Of(node("editorGridSpacing_dialog"))->Widget());
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "7");
    ASSERT_TRUE(field->IsTyping());
    save("int Drw_settings_GridDisplay = 1\ndouble Drw_settings_GridPrimarySpacing = 55\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.settings.Style().grid; }));
    EXPECT_TRUE(field->IsTyping());
    EXPECT_FALSE(isTicked("checkGrid_dialog"));
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isTicked("checkGrid_dialog"); }));
    double spacing = 0.0;
    repository.ReadSetting("Drw_settings_GridPrimarySpacing", &spacing, 1);
    EXPECT_EQ(spacing, 7.0) << "what was typed on top of it counts";

    box.Write(box.File("site"), "lock int Drw_settings_GridDisplay = 0\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !node("checkGrid_dialog")->IsEnabled(); }));
    EXPECT_FALSE(program.settings.Style().grid || isTicked("checkGrid_dialog"));
    options.reject();
    KivSettingRepository::ForgetAll();
    int stored = -1;
    KivSettingRepository::GetRepository("DraftingOptions")->ReadSetting("RotSnapAuto", &stored, 1);
    EXPECT_EQ(stored, !mine) << "canceled: what the other program saved is left";
}

TEST_F(SheetProgram, TheWelcomeChangesTheSheetUnlessItIsHidden)
{
    KivSettingRepository& repository = box.Reopen();
    Program program;
    DraftingWindow& window = program.window;
    window.Welcome();
    auto* const welcome = window.findChild<DraftingWelcome*>();
    ASSERT_TRUE(welcome);
    auto* const sizes = welcome->findChild<QComboBox*>();
    sizes->setCurrentIndex(sizes->findData("A1"));
    for (auto* const button : welcome->findChildren<QRadioButton*>())
        button->setChecked(!button->isChecked());
    EXPECT_EQ(window.Sheet().Camera().Sheet(), QSizeF(594.0, 841.0));
    delete welcome;

    const int hidden = 1, shown = 0;
    repository.WriteSetting("HideWhenStartWkb", &hidden, 1, 0);
    repository.WriteSetting("TreeParameters", &shown, 1, 0);
    KivDrwSketcherSettings::GetSketcherSettings()->GridModify();
    window.Welcome();
    EXPECT_FALSE(window.findChild<DraftingWelcome*>());
    QTreeWidgetItem* const view = window.findChild<DraftingTree*>()->ViewItem();
    EXPECT_TRUE(view->child(0)->isHidden());
    EXPECT_FALSE(view->child(1)->isHidden());
}

TEST_F(SheetProgram, AnErrorStaysUntilItIsDismissedOrReplaced)
{
    using enum KivDiagnostic::Severity;
    const DraftingDiagnostics diagnostics(false);
    KivReport({.severity = Error, .text = "the disk is full", .file = "/a", .line = 3});
    DraftingMessage message(diagnostics);
    EXPECT_EQ(message.Text(), "/a:3: the disk is full") << "also what was said before there was a window";
    KivReport({.severity = Note, .text = "by the way"});
    EXPECT_EQ(message.Text(), "/a:3: the disk is full");
    KivReport({.severity = Error, .text = std::string(9000, 'w').c_str()});
    EXPECT_EQ(message.Text().size(), 9000);
    EXPECT_LT(message.minimumSizeHint().width(), 600) << "a message never widens the window";
    const DraftingLog log(diagnostics, nullptr);
    for (int i = 0; i < 2000; ++i) KivReport({.text = "again and again"});
    EXPECT_LE(diagnostics.All().size(), 500U);
}

// In the pseudo language whatever comes from no catalogue is without its mark.
TEST_F(SheetProgram, EveryCommandHasItsTexts)
{
    ASSERT_EQ(Prepare({"--language", KivTextCatalogue::kPseudoLanguage}), -1);
    KivTextCatalogue::SetResourceRoot(""); // texts that an earlier case has read are read anew
    Program program;
    DraftingWindow& window = program.window;
    for (const QAction* action : window.findChildren<QAction*>())
        for (const QString& text : {action->text(), action->statusTip()})
            EXPECT_TRUE(text.isEmpty() || text.startsWith('[')) << text.toStdString();
    KivTextCatalogue::SetLanguage("English");
    KivTextCatalogue::SetResourceRoot("");
}

TEST_F(SheetProgram, ItDrawsPicturesAndEndsInOrder)
{
    const QString program = QCoreApplication::applicationDirPath() + "/kivdrafting";
    const auto run = [&](const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
        out.str(process.readAllStandardOutput().toStdString());
        err.str(process.readAllStandardError().toStdString());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    };
    const fs::path pictures = box.root / "new" / "pictures";
    EXPECT_EQ(run({"--screenshot", QString::fromStdString(pictures.string()), "--scale", "2"}), 0)
        << err.str();
    EXPECT_NE(out.str().find("drafting.png\n"), std::string::npos) << out.str();
    EXPECT_GE(QImage(QString::fromStdString((pictures / "drafting.png").string())).width(), 2000);
    EXPECT_TRUE(fs::exists(pictures / "options-general.png"));
    EXPECT_TRUE(fs::exists(pictures / "options-view-raster-picture-options.png"))
        << "also a window whose button is gray by the settings\n"
        << out.str();
    box.Write(box.root / "file", "");
    EXPECT_EQ(run({"--screenshot", QString::fromStdString((box.root / "file" / "x").string())}), 1);
    EXPECT_TRUE(Erred("cannot be created")) << err.str();

    QProcess window;
    window.start(program, {"--page", "General"}); // on the platform of this test
    ASSERT_TRUE(window.waitForStarted());
    QTest::qWait(1500);
    window.terminate();
    ASSERT_TRUE(window.waitForFinished(20000));
    EXPECT_EQ(window.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(window.exitCode(), 0) << window.readAllStandardError().toStdString();
}

} // namespace

#include "Command/KivCommandHeader.h"
#include "Component/KivMetaClass.h"
#include "KivDrwWorkbench.h"
#include "Program/DraftingCommands.h"
#include "Program/DraftingStart.h"
#include "Sheet/SheetSettings.h"
#include "Sheet/SheetView.h"
#include "Support/KivSettingsSandbox.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <set>

namespace {

// A window with nothing but the commands that an administrator can switch off.
class SheetCommands : public testing::Test {
protected:
    struct Window : QMainWindow {
        Window(const SheetSettings& settings, const DraftingMemory& memory) : sheet(new SheetView(settings))
        {
            setCentralWidget(sheet);
            sheet->resize(900, 640);
            (new DraftingCommands(*this, *sheet, memory))
                ->AddTo(*menuBar()->addMenu("Edit"), *menuBar()->addMenu("Format"));
        }
        // The entry of a text without its mnemonic.
        QAction* Entry(const char* text) const
        {
            for (QAction* action : findChildren<QAction*>())
                if (action->text().remove(u'&') == text) return action;
            return nullptr;
        }
        SheetView* sheet;
    };
    void TearDown() override
    {
        for (const auto& [text, command] : kEntries) KivCommandHeader::Declare(command)->BecomeAvailable();
    }
    static QImage Picture(SheetView& sheet) { return sheet.grab().toImage(); }

    static constexpr std::pair<const char*, const char*> kEntries[] = {
        {"Style", "DrwStyle"},
        {"Set as Default", "DrwSetAsDefault"},
        {"Reset Defaults", "DrwResetDefaults"},
        {"Sheet Background", "KivDrwEditFrame"}};

    KivSettingsSandbox box;
    KivDrwDraftingSettings drafting;
    SheetSettings settings{drafting, *KivDrwSketcherSettings::GetSketcherSettings()};
    QTemporaryDir directory;
    DraftingMemory memory{directory.filePath("desktop.ini")};
};

TEST_F(SheetCommands, TheStyleIsShownAndKeptForNewWindows)
{
    QImage usual;
    {
        Window window(settings, memory);
        usual = Picture(*window.sheet);
        window.Entry("Thick")->trigger();
        EXPECT_NE(Picture(*window.sheet), usual);
    }
    EXPECT_EQ(memory.DefaultLine(), SheetLine::Standard) << "only for that window";
    {
        Window window(settings, memory);
        window.Entry("Thin")->trigger();
        window.Entry("Set as Default")->trigger();
        EXPECT_FALSE(window.statusBar()->currentMessage().isEmpty());
    }
    Window window(settings, memory);
    EXPECT_TRUE(window.Entry("Thin")->isChecked());
    EXPECT_NE(Picture(*window.sheet), usual);
    window.Entry("Reset Defaults")->trigger();
    EXPECT_TRUE(window.Entry("Thin")->isChecked()) << "of this window nothing changes";
    EXPECT_EQ(Picture(*Window(settings, memory).sheet), usual);
    DraftingMemory("/proc/nowhere/desktop.ini").SetDefaultLine(SheetLine::Thick);
}

TEST_F(SheetCommands, TheBackgroundTakesTheViewAwayUntilItIsLeft)
{
    Window window(settings, memory);
    const QImage usual = Picture(*window.sheet);
    QAction* entry = window.Entry("Sheet Background");
    entry->trigger();
    EXPECT_NE(Picture(*window.sheet), usual);
    window.sheet->SelectView(true);
    EXPECT_FALSE(window.sheet->IsViewSelected());
    QTest::keyClick(window.sheet, Qt::Key_Left);
    EXPECT_EQ(window.sheet->Rotation(), 0.0);
    KivCommandHeader::Declare("KivDrwEditFrame")->BecomeUnavailable();
    EXPECT_FALSE(window.sheet->Look().isBackground) << "nobody is locked up in it";
    EXPECT_TRUE(window.sheet->IsViewSelected());
    window.sheet->ZoomToFit(); // the key has scrolled
    EXPECT_EQ(Picture(*window.sheet), usual);
}

TEST_F(SheetCommands, StartAsTheSettingsSay)
{
    std::ostringstream out, err;
    ASSERT_FALSE(DraftingStart::Prepare(CommandLine::Parse({}), out, err)) << err.str();
    if (!KivMetaClass::Find("KivDrwDraftingSettingCtrl")) GTEST_SKIP() << "its library is not loaded";
    const std::pair<const char*, std::set<std::string>> rules[] = {
        {"DrwOnlyUserDefault", {"Style"}},
        {"DrwAllowUserDefault", {"Set as Default", "Reset Defaults"}},
        {"DrwLockBackgroundView", {"Sheet Background"}}};
    for (const auto& [key, grayed] : rules) {
        const int on = 1;
        box.Reopen().WriteSetting(key, &on, 1, 0);
        const Window window(settings, memory);
        for (const auto& [text, command] : kEntries)
            EXPECT_NE(window.Entry(text)->isEnabled(), grayed.contains(text)) << key << " " << text;
        const QString reason = "Switched off by the administrator: Options > Administration";
        for (const bool isOff : {true, false}) {
            if (!isOff) TearDown();
            for (const std::string& text : grayed) {
                const QAction& entry = *window.Entry(text.c_str());
                EXPECT_EQ(entry.isEnabled(), !isOff);
                EXPECT_EQ(entry.toolTip() == reason, isOff);
                EXPECT_EQ(entry.statusTip() == reason, isOff);
                EXPECT_FALSE(entry.statusTip().isEmpty());
            }
        }
    }
}

} // namespace

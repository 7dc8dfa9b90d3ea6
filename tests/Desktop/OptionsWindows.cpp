#include "OptionsFixture.h"
#include "OptionsMessageStrip.h"
#include "OptionsPageView.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QTemporaryDir>

namespace {

using Log = std::vector<std::string>;

class OptionsWindows : public OptionsFixture {
protected:
    void SetUp() override
    {
        OptionsFixture::SetUp();
        Activate(window.get());
    }
    int PageNumber(const char* name)
    {
        return static_cast<int>(window->Session()->FindPage(name) - window->Session()->Pages().data());
    }
};

TEST_F(OptionsWindows, PagesAreBuiltWhenFirstShownAndKeysWalkThem)
{
    const int first = PageNumber("TestEditor"), last = PageNumber("OtherTestEditor");
    ASSERT_EQ(last, window->PageCount() - 1);
    EXPECT_TRUE(window->PageView(first).IsBuilt());
    EXPECT_FALSE(window->PageView(last).IsBuilt());
    QTest::keyClick(Spinner(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window->CurrentPage(), last);
    EXPECT_TRUE(window->PageView(last).IsBuilt());
    EXPECT_TRUE(Button("Reset")->toolTip().contains("OtherTestEditor"));
    QTest::keyClick(window.get(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window->CurrentPage(), last);
    QTest::keyClick(window.get(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(window->CurrentPage(), first);
}

TEST_F(OptionsWindows, TabGoesFromTheListThroughThePageToTheButtons)
{
    for (const char* page : {"TestEditor", "OtherTestEditor", "TestEditor"}) {
        ASSERT_TRUE(window->ShowPage(page));
        // A padlock that closes while the window is open takes its place.
        KivDialog* frame = Frame(page);
        static_cast<KivDlgLock*>(frame->FindDialog("checkGridLock"))->SetInfo(TestPage::LockedInfo("Grid"));
        // A choice is entered once, where it stands: below the padlock of the one beside it.
        static_cast<KivDlgRadioButton*>(frame->FindDialog("radioPoint1"))->SetState(KivDlgChecked, 0);
        QList<QWidget*> order;
        for (const char* name :
             {"checkGridLock", "checkSnapLock", "checkAllowDistortions_dialog", "editorH_dialog",
              "editorAngleLock", "comboBackground_dialog", "comboDetailLock", "comboType_dialog",
              "comboDirection_dialog", "editorFile_dialog", "radioOtherLock", "radioPoint1",
              "comboSymbol_dialog", "pushSettings_dialog"})
            order << NativePiece::Of(frame->FindDialog(name))->Widget();
        order << Button("Reset") << Button("OK") << Button("Cancel");
        window->findChild<QListWidget*>()->setFocus();
        for (const QWidget* next : order) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            ASSERT_EQ(QApplication::focusWidget(), next) << page << " " << next->objectName().toStdString();
        }
    }
}

TEST_F(OptionsWindows, EnterEntersTheFieldAndThenIsOK)
{
    TestHand::TypeOver(Spinner(), "wide");
    QTest::keyClick(Spinner(), Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
    QTest::mouseClick(Button("OK"), Qt::LeftButton);
    EXPECT_TRUE(window->isVisible()) << "OK would have thrown the text away";
    EXPECT_FALSE(Spinner()->Refusal().isEmpty());
    QTest::keyClick(Spinner(), Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());

    int finished = -1;
    QObject::connect(window.get(), &QDialog::finished, [&](int result) { finished = result; });
    TestHand::TypeOver(Spinner(), "20");
    QTest::keyClick(Spinner(), Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(finished, QDialog::Accepted);
    EXPECT_FALSE(window->Session());
    EXPECT_EQ(TestEditor::log, (Log{"commit", "commit", "close", "close"}));
}

TEST_F(OptionsWindows, AnyOtherWayOfClosingCancels)
{
    const std::function<void()> ways[] = {
        [this] { QTest::keyClick(window.get(), Qt::Key_Escape); },
        [this] { window->close(); },
        [this] { QTest::mouseClick(Button("Cancel"), Qt::LeftButton); },
        [this] { window.reset(); },
    };
    for (const auto& close : ways) {
        Open();
        TestEditor::log.clear();
        close();
        EXPECT_FALSE(window && window->isVisible());
        EXPECT_EQ(TestEditor::log, (Log{"cancel", "cancel", "close", "close"})) << &close - ways;
    }
}

TEST_F(OptionsWindows, WhatCouldNotBeSavedIsSaidAndTheWindowStays)
{
    TestEditor::failing = true;
    QTest::mouseClick(Button("OK"), Qt::LeftButton);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->Messages().isVisible());
    EXPECT_TRUE(window->Messages().Messages().join(' ').contains("the disk is full"));
    ASSERT_TRUE(window->Session());
    TestEditor::failing = false;
    QTest::mouseClick(Button("OK"), Qt::LeftButton);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(OptionsWindows, DiagnosticsAreShownAndPassedOn)
{
    window.reset();
    std::vector<KivDiagnostic> heard;
    const KivDiagnosticScope scope(heard);
    Open();
    heard.clear();
    for (int i = 0; i < 2; ++i) KivReport({.text = "odd", .file = "a.kivsettings", .line = 3});
    EXPECT_EQ(window->Messages().Messages().count("a.kivsettings:3: odd"), 1);
    EXPECT_EQ(heard.size(), 2U);
    window.reset();
    KivReport({.text = "later"});
    EXPECT_EQ(heard.size(), 3U);
}

TEST_F(OptionsWindows, ResetFillsTheShownPage)
{
    QTest::mouseClick(Button("Reset"), Qt::LeftButton);
    EXPECT_EQ(Spinner()->findChild<QLineEdit*>()->text(), "50 mm");
}

TEST_F(OptionsWindows, F1ShowsTheLongHelpOfTheField)
{
    QWidget* check = WidgetOf("checkGrid_dialog");
    check->setFocus();
    QTest::keyClick(check, Qt::Key_F1);
    QWidget* panel = check->findChild<QWidget*>("NativePanel");
    ASSERT_TRUE(panel && panel->isVisible());
    EXPECT_TRUE(panel->accessibleDescription().contains("never printed"));
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(OptionsWindows, SizeAndPageAreRememberedAndNeverTooLarge)
{
    const QTemporaryDir directory;
    const OptionsMemory memory(directory.filePath("desktop.ini"));
    Open(memory);
    window->resize(window->screen()->availableGeometry().size() * 3 / 4);
    const QSize chosen = window->size();
    window->ShowPage("OtherTestEditor");
    window->reject();
    Open(memory);
    EXPECT_EQ(window->size(), chosen);
    EXPECT_EQ(window->CurrentPage(), PageNumber("OtherTestEditor"));
    window->resize(100, 100000);
    window->reject();
    Open(memory);
    EXPECT_LE(window->height(), window->screen()->availableGeometry().height());
    Open(OptionsMemory("/proc/nowhere/desktop.ini"));
    window->reject();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(OptionsWindows, MayBeLeftToDeleteItself)
{
    for (const bool ok : {true, false}) {
        const QPointer<OptionsWindow> own = new OptionsWindow(OpenTestSession(), OptionsMemory(QString()));
        own->setAttribute(Qt::WA_DeleteOnClose);
        own->open();
        ok ? own->accept() : own->reject();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(own);
    }
}

} // namespace

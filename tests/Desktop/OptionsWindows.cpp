#include "NativePiece.h"
#include "NativeSpinner.h"
#include "OptionsMessageStrip.h"
#include "OptionsPageView.h"
#include "OptionsWindow.h"
#include "TestEditors.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

using Log = std::vector<std::string>;

class OptionsWindows : public testing::Test {
protected:
    void SetUp() override
    {
        TestEditor::log.clear();
        TestEditor::failing = false;
        TestEditor::stored = 0.1;
        Open(OptionsMemory(QString()));
    }
    void TearDown() override
    {
        window.reset();
        KivCommand::DrainDelayedDestruction();
        EXPECT_EQ(KivBaseUnknown::LiveObjects(), before);
    }
    void Open(const OptionsMemory& memory)
    {
        window = std::make_unique<OptionsWindow>(OpenTestSession(), memory);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        ASSERT_TRUE(!memory.Page().IsEmpty() || window->ShowPage("TestEditor"));
    }
    // Libraries that are loaded offer pages beside the test's own.
    KivDialog* Frame() { return window->Session()->FindPage("TestEditor")->frame.Get(); }
    int PageNumber(const char* name)
    {
        return static_cast<int>(window->Session()->FindPage(name) - window->Session()->Pages().data());
    }
    NativeSpinner* Spinner()
    {
        KivDialog* frame = Frame();
        return static_cast<NativeSpinner*>(NativePiece::Of(frame->FindDialog("editorH_dialog"))->Widget());
    }
    QPushButton* Button(const char* text)
    {
        const QList<QPushButton*> buttons = window->findChildren<QPushButton*>();
        const auto found = std::find_if(buttons.begin(), buttons.end(),
                                        [&](QPushButton* button) { return button->text() == text; });
        return found == buttons.end() ? nullptr : *found;
    }
    void TypeOver(const char* text)
    {
        Spinner()->setFocus();
        Spinner()->findChild<QLineEdit*>()->selectAll();
        QTest::keyClicks(Spinner(), text);
    }

    long before = KivBaseUnknown::LiveObjects();
    std::unique_ptr<OptionsWindow> window;
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
        KivDialog* frame = window->Session()->FindPage(page)->frame.Get();
        static_cast<KivDlgLock*>(frame->FindDialog("checkGridLock"))->SetInfo(TestPage::LockedInfo("Grid"));
        QList<QWidget*> order;
        for (const char* name :
             {"checkGridLock", "checkSnapLock", "checkAllowDistortions_dialog", "editorH_dialog",
              "editorAngleLock", "comboBackground_dialog", "comboDetailLock", "comboType_dialog",
              "comboWeight_dialog", "comboDirection_dialog", "editorFile_dialog", "radioPoint0",
              "radioOtherLock", "comboSymbol_dialog", "pushSettings_dialog"})
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
    TypeOver("wide");
    QTest::keyClick(Spinner(), Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
    QTest::mouseClick(Button("OK"), Qt::LeftButton);
    EXPECT_TRUE(window->isVisible()) << "OK would have thrown the text away";
    EXPECT_FALSE(Spinner()->Refusal().isEmpty());
    QTest::keyClick(Spinner(), Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());

    int finished = -1;
    QObject::connect(window.get(), &QDialog::finished, [&](int result) { finished = result; });
    TypeOver("20");
    QTest::keyClick(Spinner(), Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(finished, QDialog::Accepted);
    EXPECT_FALSE(window->Session());
    EXPECT_EQ(TestEditor::log, (Log{"commit", "commit", "close", "close"}));
}

TEST_F(OptionsWindows, AnyOtherWayOfClosingCancels)
{
    const Log cancelled{"cancel", "cancel", "close", "close"};
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(TestEditor::log, cancelled);
    TestEditor::log.clear();
    Open(OptionsMemory(QString()));
    window->close();
    EXPECT_EQ(TestEditor::log, cancelled);
    TestEditor::log.clear();
    Open(OptionsMemory(QString()));
    QTest::mouseClick(Button("Cancel"), Qt::LeftButton);
    EXPECT_EQ(TestEditor::log, cancelled);
    TestEditor::log.clear();
    Open(OptionsMemory(QString()));
    window.reset();
    EXPECT_EQ(TestEditor::log, cancelled);
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
    const KivDiagnosticSink outer =
        KivSetDiagnosticSink([&](const KivDiagnostic& diagnostic) { heard.push_back(diagnostic); });
    Open(OptionsMemory(QString()));
    heard.clear();
    for (int i = 0; i < 2; ++i) KivReport({.text = "odd", .file = "a.kivsettings", .line = 3});
    EXPECT_EQ(window->Messages().Messages().count("a.kivsettings:3: odd"), 1);
    EXPECT_EQ(heard.size(), 2U);
    window.reset();
    KivReport({.text = "later"});
    EXPECT_EQ(heard.size(), 3U);
    KivSetDiagnosticSink(outer);
}

TEST_F(OptionsWindows, ResetFillsTheShownPage)
{
    QTest::mouseClick(Button("Reset"), Qt::LeftButton);
    EXPECT_EQ(Spinner()->findChild<QLineEdit*>()->text(), "50 mm");
}

TEST_F(OptionsWindows, F1ShowsTheLongHelpOfTheField)
{
    QWidget* check = NativePiece::Of(Frame()->FindDialog("checkGrid_dialog"))->Widget();
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

TEST_F(OptionsWindows, WhatPagesCondemnGoesBetweenEvents)
{
    const KivWeakPtr<KivDialog> group = Frame()->FindDialog("frameColour");
    group->RequestDelayedDestruction();
    EXPECT_TRUE(group);
    QTest::qWait(1);
    EXPECT_FALSE(group);
}

} // namespace

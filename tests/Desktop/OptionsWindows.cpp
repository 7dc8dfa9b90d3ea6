#include "Common/WindowPlace.h"
#include "Disk/KivFileLock.h"
#include "Options/OptionsStrips.h"
#include "OptionsFixture.h"

#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QTemporaryDir>

#include <algorithm>

namespace {

class OptionsWindows : public OptionsFixture {
protected:
    NativeSpinner* Spacing() { return WidgetOf<NativeSpinner>("editorGridSpacing"); }
};

TEST_F(OptionsWindows, PagesAreBuiltWhenFirstShownAndKeysWalkThem)
{
    const int last = window->PageCount() - 1;
    EXPECT_FALSE(window->PageView(0).Fields().isEmpty());
    EXPECT_TRUE(window->PageView(last).Fields().isEmpty());
    QTest::keyClick(Spacing(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window->CurrentPage(), 1);
    EXPECT_FALSE(window->PageView(1).Fields().isEmpty());
    EXPECT_TRUE(Button("Reset")->toolTip().contains("Layout"));
    ASSERT_TRUE(window->ShowPage(window->Session()->Pages().back().title));
    QTest::keyClick(window.get(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window->CurrentPage(), last);
    QTest::keyClick(window.get(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(window->CurrentPage(), last - 1);

    // The others come without being asked for; then the window has room for the largest.
    const auto isBuilt = [this] {
        for (int page = 0; page < window->PageCount(); ++page)
            if (window->PageView(page).Fields().isEmpty()) return false;
        return true;
    };
    EXPECT_TRUE(QTest::qWaitFor(isBuilt));
    const QRect free = window->screen()->availableGeometry();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return window->width() >= std::min(window->sizeHint().width(), free.width() - 20) &&
               window->height() >= std::min(window->sizeHint().height(), free.height() - 20);
    }));
    EXPECT_TRUE(free.contains(window->frameGeometry()));

    QTest::keyClick(window.get(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(window->CurrentPage(), last);
    QTest::keyClick(window.get(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window->CurrentPage(), last - 1);

    // A letter leads to its field, and the field is seen.
    window->ShowPage("General");
    window->resize(window->width(), 250);
    QTest::keyClick(window.get(), Qt::Key_F, Qt::AltModifier);
    ASSERT_EQ(QApplication::focusWidget(), WidgetOf("spinnerViewAxisSize"));
    const QRect seen(View().viewport()->mapTo(window.get(), QPoint()), View().viewport()->size());
    EXPECT_TRUE(seen.contains(PositionOf(Control("spinnerViewAxisSize"))));
    QTest::keyClick(window.get(), Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
}

TEST_F(OptionsWindows, TabGoesFromTheListThroughThePageToTheButtons)
{
    // Closed padlocks take the place of their controls, also one that closes while the window is open; a
    // choice is entered once, where it stands.
    const std::pair<const char*, std::vector<const char*>> pages[] = {
        {"General",
         {"checkRuler", "checkGridLock", "checkSnapLock", "checkAllowDistortions", "editorGridSpacing",
          "editorGridGraduation", "spinnerRotSnapAngle", "checkRotSnapAuto", "comboBackgroundColor",
          "checkGraduatedColor", "comboBackgroundColorDDLock", "checkGraduatedColorDD",
          "_checkTreeParameters", "_checkTreeFormulas", "checkViewReferential", "checkViewRefZoom",
          "spinnerViewAxisSize", "chkHideStartWkb"}},
        {"Layout",
         {"checkViewName", "checkViewScale", "checkViewFrame", "comboCalloutSize", "checkViewOrientation",
          "checkStrictPositioning", "checkGenPropagation", "checkBackgroundToCopy", "radioSheetOther",
          "editorTitleBlockPath"}}};
    box.Write(file, "int BackgroundViewToCopy = 1\nint SourceSheetType = 0\n");
    Open();
    KivSettingInfo locked;
    locked.locked = true;
    for (const auto& [page, names] : pages) {
        ASSERT_TRUE(window->ShowPage(page));
        Lock("checkGrid").SetInfo(locked);
        window->findChild<QListWidget*>()->setFocus();
        for (const char* name : names) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            ASSERT_EQ(QApplication::focusWidget(), WidgetOf(name)) << name;
        }
        if (names.back() == std::string("editorTitleBlockPath"))
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // the button beside it
        for (const char* button : {"Reset", "OK", "Cancel"}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            ASSERT_EQ(QApplication::focusWidget(), Button(button)) << button;
        }
    }

    // On every page it is a ring, the same in both directions.
    const auto ring = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QList<QWidget*> seen{window->findChild<QListWidget*>()};
        seen.front()->setFocus();
        for (int i = 0; i < 200; ++i) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            if (QApplication::focusWidget() == seen.front()) break;
            seen << QApplication::focusWidget();
        }
        return seen;
    };
    for (int page = 0; page < window->PageCount(); ++page) {
        window->findChild<QListWidget*>()->setCurrentRow(page);
        const QList<QWidget*> on = ring(Qt::Key_Tab, {});
        QList<QWidget*> back = ring(Qt::Key_Backtab, Qt::ShiftModifier);
        std::reverse(back.begin() + 1, back.end());
        EXPECT_EQ(on, back) << page;
        EXPECT_LT(on.size(), 100) << page << ": it never comes back";
        EXPECT_EQ(QSet<QWidget*>(on.begin(), on.end()).size(), on.size()) << page;
    }
}

TEST_F(OptionsWindows, EnterEntersTheFieldAndThenIsOK)
{
    TestHand::TypeOver(Spacing(), "wide");
    QTest::keyClick(Spacing(), Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
    QTest::mouseClick(Button("OK"), Qt::LeftButton);
    EXPECT_TRUE(window->isVisible()) << "OK would have thrown the text away";
    EXPECT_FALSE(Spacing()->Refusal().isEmpty());
    QTest::keyClick(Spacing(), Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());

    int finished = -1;
    QObject::connect(window.get(), &QDialog::finished, [&](int result) { finished = result; });
    TestHand::TypeOver(Spacing(), "20");
    QTest::keyClick(Spacing(), Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(finished, QDialog::Accepted);
    EXPECT_FALSE(window->Session());
    EXPECT_NE(box.Bytes(file).find("double Drw_settings_GridPrimarySpacing = 20\n"), std::string::npos);
}

TEST_F(OptionsWindows, AnyOtherWayOfClosingCancels)
{
    const std::function<void()> ways[] = {
        [this] { QTest::keyClick(window.get(), Qt::Key_Escape); },
        [this] { window->close(); },
        [this] { QTest::mouseClick(Button("Cancel"), Qt::LeftButton); },
        [this] { window.reset(); },
    };
    const int before = Stored("Drw_settings_GridDisplay", 1);
    for (const auto& close : ways) {
        Open();
        TestHand::ClickIndicator(WidgetOf("checkGrid"));
        EXPECT_NE(Stored("Drw_settings_GridDisplay", 1), before);
        close();
        EXPECT_FALSE(window && window->isVisible());
        EXPECT_EQ(Stored("Drw_settings_GridDisplay", 1), before) << &close - ways;
        EXPECT_FALSE(std::filesystem::exists(file));
    }
    for (const bool ok : {true, false}) {
        Open();
        const QPointer<OptionsWindow> own = window.release();
        own->setAttribute(Qt::WA_DeleteOnClose);
        ok ? own->accept() : own->reject();
        Settle();
        EXPECT_FALSE(own);
    }
}

TEST_F(OptionsWindows, WhatIsWrongIsSaidOnceAndPassedOnAndTheWindowStays)
{
    TestHand::ClickIndicator(WidgetOf("checkGrid"));
    std::filesystem::remove_all(box.root / "user");
    box.Write(box.root / "user", "a file where the directory was");
    QTest::mouseClick(Button("OK"), Qt::LeftButton);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->Messages().isVisible());
    EXPECT_TRUE(window->Messages().Messages().join(' ').contains("not saved"));
    ASSERT_TRUE(window->Session());
    std::filesystem::remove(box.root / "user");
    box.diagnostics.clear();
    for (int i = 0; i < 2; ++i) KivReport({.text = "odd", .file = "a.kivsettings", .line = 3});
    EXPECT_EQ(window->Messages().Messages().count("a.kivsettings:3: odd"), 1);
    EXPECT_EQ(box.diagnostics.size(), 2U);
    QTest::mouseClick(Button("OK"), Qt::LeftButton);
    EXPECT_FALSE(window->isVisible());
    window.reset();
    KivReport({.text = "later"});
    EXPECT_EQ(box.Said("later"), 1);
}

TEST_F(OptionsWindows, OKWaitsForAnotherProgramWhileTheWindowGoesOn)
{
    using Clock = std::chrono::steady_clock;
    const auto press = [this] {
        const auto start = Clock::now();
        QTest::mouseClick(Button("OK"), Qt::LeftButton);
        EXPECT_LT(Clock::now() - start, std::chrono::seconds(1)) << "a save by itself would wait for three";
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(window->Messages().Messages().join(' ').toStdString(),
                  "Another program is saving the settings. Yours are saved as soon as it is done.");
    };
    const auto open = [this] {
        Open();
        TestHand::ClickIndicator(WidgetOf("checkGrid"));
    };
    const KivUnicodeString place(file.string());
    auto other = std::make_unique<KivFileLock>(place);
    open();
    press();
    QTest::mouseClick(Button("Cancel"), Qt::LeftButton);
    EXPECT_FALSE(window->isVisible());

    open();
    press();
    const auto start = Clock::now();
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->Messages().Messages().size() > 1; }, 10000));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5)) << "the pages wait together";
    EXPECT_TRUE(window->Messages().Messages().join(' ').contains("saving the file for too long"));
    EXPECT_FALSE(std::filesystem::exists(file));

    press();
    other.reset();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, 3000));
    EXPECT_TRUE(std::filesystem::exists(file));
    EXPECT_TRUE(KivFileLock(place).IsHeld()) << "given back";
}

TEST_F(OptionsWindows, ResetFillsTheShownPageAndF1ShowsTheLongHelp)
{
    box.Write(box.File("site"), "double Drw_settings_GridPrimarySpacing = 50\n");
    box.Write(file, "double Drw_settings_GridPrimarySpacing = 70\n");
    Open();
    EXPECT_EQ(Spacing()->findChild<QLineEdit*>()->text(), "70 mm");
    QTest::mouseClick(Button("Reset"), Qt::LeftButton);
    EXPECT_EQ(Spacing()->findChild<QLineEdit*>()->text(), "50 mm");

    QWidget* check = WidgetOf("checkGrid");
    check->setFocus();
    QTest::keyClick(check, Qt::Key_F1);
    QWidget* panel = check->findChild<QWidget*>("NativePanel");
    ASSERT_TRUE(panel && panel->isVisible());
    EXPECT_TRUE(panel->accessibleDescription().contains(check->whatsThis()));
    EXPECT_FALSE(check->whatsThis().isEmpty());
    EXPECT_FALSE(panel->geometry().intersects(QRect(check->mapToGlobal(QPoint(0, 0)), check->size())));
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(OptionsWindows, OpensBesideTheSheetWhereThereIsRoom)
{
    const QRect free = window->screen()->availableGeometry();
    const QSize size(free.width() / 2, free.height() / 3);
    for (const QRect& sheet : {QRect(free.x(), free.y(), free.width() / 4, free.height()),
                               QRect(free.right() - free.width() / 4, free.y(), free.width() / 4, 300),
                               QRect(free.x(), free.y() + 20, free.width(), free.height() / 4), free}) {
        QWidget other;
        other.setGeometry(sheet);
        const QRect place = WindowPlace::Beside(*window, size, other);
        EXPECT_TRUE(free.contains(place));
        EXPECT_EQ(place.intersects(other.geometry()), sheet == free);
    }
}

TEST_F(OptionsWindows, PlaceAndPageAreRememberedAndNeverTooLarge)
{
    const QTemporaryDir directory;
    const OptionsMemory memory(directory.filePath("desktop.ini"));
    OpenAt("General", memory);
    const QRect free = window->screen()->availableGeometry();
    const QRect chosen(free.topLeft() + QPoint(40, 30), free.size() * 3 / 4);
    window->setGeometry(chosen);
    window->ShowPage("Geometry");
    const int page = window->CurrentPage();
    window->reject();
    OpenAt(nullptr, memory);
    EXPECT_EQ(window->geometry(), chosen);
    EXPECT_EQ(window->CurrentPage(), page);
    window->resize(100, 100000);
    window->reject();
    OpenAt(nullptr, memory);
    EXPECT_TRUE(QTest::qWaitFor([&] { return free.contains(window->frameGeometry()); }))
        << "the frame is known when it is shown";
    OpenAt("General", OptionsMemory("/proc/nowhere/desktop.ini"));
    window->reject();
    EXPECT_FALSE(window->isVisible());
}

} // namespace

#include "IconStore.h"
#include "NativeFixture.h"
#include "OptionsMessageStrip.h"
#include "OptionsWindow.h"
#include "TestEditors.h"
#include "TestWindow.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>

namespace {

QPalette Dark()
{
    QPalette palette(QColor(45, 46, 50));
    palette.setColor(QPalette::Base, QColor(32, 33, 36));
    palette.setColor(QPalette::ToolTipBase, QColor(70, 70, 60));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(60, 110, 180));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    return palette;
}

// A picture for people to look at, in the directory that they name; returned for the test.
QImage Take(QWidget& widget, const char* name, qreal scale = 1.0)
{
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    widget.render(&image);
    const QString directory = qEnvironmentVariable("KIV_TEST_PICTURES");
    EXPECT_TRUE(directory.isEmpty() || image.save(QDir(directory).filePath(QString(name) + ".png")));
    return image;
}

class Pictures : public testing::Test {
protected:
    void TearDown() override
    {
        QApplication::setPalette(usual);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
    QPalette usual = QApplication::palette();
};

// How much of a picture is painted in about that colour.
int Count(const QImage& image, QColor colour)
{
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor at = image.pixelColor(x, y);
            pixels += std::abs(at.red() - colour.red()) + std::abs(at.green() - colour.green()) +
                          std::abs(at.blue() - colour.blue()) <
                      60;
        }
    }
    return pixels;
}

TEST_F(Pictures, TheWindowFollowsThePaletteScaleAndDirection)
{
    const auto open = [] {
        auto window = std::make_unique<OptionsWindow>(OpenTestSession(), OptionsMemory(QString()));
        window->Messages().Clear();
        EXPECT_TRUE(window->ShowPage("TestEditor"));
        window->show();
        QTest::qWait(10);
        return window;
    };
    auto window = open();
    const QImage light = Take(*window, "light");
    const QImage twice = Take(*window, "light-2", 2.0);
    EXPECT_EQ(twice.width(), 2 * light.width());
    KivDialog* frame = window->Session()->FindPage("TestEditor")->frame.Get();
    QWidget* closed = NativePiece::Of(frame->FindDialog("checkSnapLock"))->Widget();
    QWidget* opened = NativePiece::Of(frame->FindDialog("checkGridLock"))->Widget();
    const QColor ink = QApplication::palette().color(QPalette::WindowText);
    EXPECT_GT(Count(Take(*closed, "closed-3", 3.0), ink), 500);
    EXPECT_LT(Count(Take(*opened, "opened-3", 3.0), ink), 30) << "an open padlock is pale";

    QApplication::setPalette(Dark());
    QTest::qWait(10);
    Take(*window, "dark");
    EXPECT_GT(Count(Take(*closed, "closed-dark-3", 3.0), Qt::white), 500) << "it follows the palette at once";
    QApplication::setPalette(usual);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    window = open();
    Take(*window, "right-to-left");
}

TEST_F(Pictures, RefusalsMessagesAndPanelsAreSeen)
{
    OptionsWindow window(OpenTestSession(), OptionsMemory(QString()));
    ASSERT_TRUE(window.ShowPage("TestEditor"));
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    KivDialog* frame = window.Session()->FindPage("TestEditor")->frame.Get();
    QWidget* field = NativePiece::Of(frame->FindDialog("editorH_dialog"))->Widget();
    const QImage before = Take(*field, "field");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, "20 apples");
    QTest::keyClick(field, Qt::Key_Return);
    KivReport({.text = "this line is no setting", .file = "/home/user/Drafting.kivsettings", .line = 7});
    QTest::qWait(10);
    Take(window, "refused");
    EXPECT_NE(Take(*field, "field-refused"), before);
    QWidget* lock = NativePiece::Of(frame->FindDialog("checkSnapLock"))->Widget();
    lock->setFocus();
    QTest::keyClick(lock, Qt::Key_Return);
    QWidget* panel = lock->findChild<QWidget*>("NativePanel");
    ASSERT_TRUE(panel);
    QTest::qWait(10);
    Take(*panel, "panel");
    panel->close();
    for (const char* name : {"comboBackground_dialog", "comboType_dialog", "comboWeight_dialog"}) {
        auto* combo = static_cast<QComboBox*>(NativePiece::Of(frame->FindDialog(name))->Widget());
        combo->showPopup();
        QTest::qWait(10);
        Take(*combo->view()->window(), name);
        combo->hidePopup();
    }
}

TEST_F(Pictures, ChoicesPointsAndAWindowOfAPageAreSeen)
{
    for (const char* scheme : {"light", "dark"}) {
        if (*scheme == 'd') QApplication::setPalette(Dark());
        OptionsWindow window(OpenTestSession(), OptionsMemory(QString()));
        ASSERT_TRUE(window.ShowPage("TestEditor"));
        window.resize(window.sizeHint().width(), 900);
        window.show();
        KivDialog* frame = window.Session()->FindPage("TestEditor")->frame.Get();
        static_cast<KivDlgRadioButton*>(frame->FindDialog("radioPoint1"))->SetState(KivDlgChecked, 0);
        QTest::qWait(10);
        if (*scheme == 'd') {
            KivSettingInfo administrators;
            administrators.canLock = administrators.lockedHere = true;
            static_cast<KivDlgLock*>(frame->FindDialog("radioPointLock"))->SetInfo(administrators);
        }
        Take(window, (std::string("choices-") + scheme).c_str());
        QWidget* group = NativePiece::Of(frame->FindDialog("framePoints"))->Widget();
        Take(*group, (std::string("choices-2-") + scheme).c_str(), 2.0);
        auto* combo =
            static_cast<QComboBox*>(NativePiece::Of(frame->FindDialog("comboSymbol_dialog"))->Widget());
        combo->showPopup();
        QTest::qWait(10);
        Take(*combo->view()->window(), (std::string("symbols-2-") + scheme).c_str(), 2.0);
        combo->hidePopup();
        auto* node = new TestWindow(frame);
        auto* field = NativePiece::Of(node->spinner)->Widget();
        QWidget* native = NativePiece::Of(node)->Widget();
        native->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(native));
        QTest::qWait(10);
        const QImage before = Take(*native, (std::string("window-") + scheme).c_str());
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, "20 apples");
        QTest::keyClick(field, Qt::Key_Return);
        QTest::qWait(10);
        EXPECT_NE(Take(*native, (std::string("window-refused-2-") + scheme).c_str(), 2.0), before);
    }
}

TEST_F(Pictures, AMissingIconIsReportedOnceAndLeavesItsPlaceEmpty)
{
    IconStore store;
    int said = 0;
    const KivDiagnosticSink before = KivSetDiagnosticSink([&](const KivDiagnostic&) { ++said; });
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(store.Icon("I_NobodyDrewThis").isNull());
    EXPECT_TRUE(store.Picture("I_NobodyDrewThis", QSize(16, 16), Qt::black).isNull());
    EXPECT_TRUE(store.Icon("").isNull());
    KivSetDiagnosticSink(before);
    EXPECT_EQ(said, 1);
}

} // namespace

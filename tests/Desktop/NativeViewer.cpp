#include "Native/NativeViewer.h"

#include "OptionsFixture.h"
#include "TestPicture.h"
#include "Viewer/Kiv2DManipulator.h"

#include <QAccessible>

namespace {

// The curve of levels of detail in the window that a page opens for HRV views.
class NativeViewers : public OptionsFixture {
protected:
    void Open() override
    {
        box.Write(file, "int DrwGenerationModeVal = 3\n");
        OpenAt("View");
        QTest::keyClick(WidgetOf("pushRasterOptions"), Qt::Key_Space);
        graph = &Node<Kiv2DViewer>("viewerHRVLOD");
        widget = WidgetOf<NativeViewer>(*graph);
        Activate(widget->window());
        moved = std::make_unique<Listener>(*graph->GetActiveManipulator(),
                                           graph->GetActiveManipulator()->GetManipulateNotification());
    }
    void TearDown() override
    {
        QApplication::setPalette(usual);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        moved.reset();
        OptionsFixture::TearDown();
    }
    double Level() { return Spinner("spinHRVLOD").GetValue(); }
    QPoint PositionOf(const Kiv2DPoint& point) const { return widget->Graph().ToWindow(point).toPoint(); }
    QPoint PositionOf(int level) const
    {
        const double x = 5.0 * level;
        return PositionOf(Kiv2DPoint{x, 10.0 + 13.0 / 1125.0 * x * x});
    }
    void Move(const QPoint& to) const { TestHand::Drag(widget, to); }
    QImage Take(int scale = 1) const { return TestPicture::Take(*widget, scale); }

    QPalette usual = QApplication::palette();
    Kiv2DViewer* graph = nullptr;
    NativeViewer* widget = nullptr;
    std::unique_ptr<Listener> moved;
};

TEST_F(NativeViewers, ThePointerDragsThePointAlongTheCurve)
{
    EXPECT_EQ(widget->cursor().shape(), Qt::OpenHandCursor);
    const QPoint beside = PositionOf(4) + QPoint(2, -3);
    QTest::mousePress(widget, Qt::LeftButton, {}, beside);
    EXPECT_EQ(moved->heard, 0) << "the handle jumped when it was taken";
    EXPECT_EQ(widget->cursor().shape(), Qt::ClosedHandCursor);
    Move(PositionOf(9) + QPoint(2, 30));
    EXPECT_EQ(Level(), 9.0);
    Move(QPoint(-400, 0));
    EXPECT_EQ(Level(), 1.0);
    QTest::keyClick(widget, Qt::Key_Escape);
    EXPECT_EQ(Level(), 4.0) << "let go of where it was taken";
    Move(PositionOf(9));
    QTest::mouseRelease(widget, Qt::LeftButton, {}, PositionOf(9));
    EXPECT_EQ(Level(), 4.0);
    QTest::mouseClick(widget, Qt::LeftButton, {}, PositionOf(12) + QPoint(0, 40));
    EXPECT_EQ(Level(), 12.0) << "from elsewhere it comes to the pointer";
    QTest::mouseClick(widget, Qt::RightButton, {}, PositionOf(2));
    EXPECT_EQ(Level(), 12.0);
    EXPECT_EQ(widget->cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(NativeViewers, KeysStepAlsoFromRightToLeftAndTheWheelMovesNothing)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    widget->setFocus();
    std::vector<double> levels;
    for (const Qt::Key key :
         {Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_Home}) {
        QTest::keyClick(widget, key);
        levels.push_back(Level());
    }
    EXPECT_EQ(levels, (std::vector{5.0, 6.0, 5.0, 4.0, 15.0, 15.0, 1.0}));
    QTest::keyClick(widget, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Level(), 1.0) << "somebody else's shortcut";
    TestHand::Wheel(widget);
    EXPECT_EQ(Level(), 1.0);
}

TEST_F(NativeViewers, ScreenReadersFindASlider)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    ASSERT_TRUE(spoken && spoken->valueInterface());
    EXPECT_EQ(spoken->role(), QAccessible::Slider);
    EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), graph->GetSpokenTitle().View());
    EXPECT_FALSE(spoken->text(QAccessible::Description).isEmpty());
    EXPECT_EQ(spoken->text(QAccessible::Value), "4");
    QAccessibleValueInterface& value = *spoken->valueInterface();
    for (const auto& [said, expected] :
         {std::pair{value.minimumValue(), 1.0}, {value.maximumValue(), 15.0}, {value.minimumStepSize(), 1.0}})
        EXPECT_EQ(said.toDouble(), expected);
    value.setCurrentValue(11);
    EXPECT_EQ(Level(), 11.0);
    EXPECT_EQ(value.currentValue().toDouble(), 11.0);
    delete graph;
    value.setCurrentValue(3);
    EXPECT_FALSE(value.currentValue().isValid());
    EXPECT_EQ(Level(), 11.0);
}

TEST_F(NativeViewers, ALockedOneIsGrayAndSaysWhyAndDoesNotMove)
{
    const QImage free = Take();
    KivDlgLock& lock = Lock("spinHRVLOD");
    KivSettingInfo info;
    QTest::mousePress(widget, Qt::LeftButton, {}, PositionOf(4));
    info.locked = true;
    lock.SetInfo(info); // comes under the hand that drags
    Move(PositionOf(9));
    EXPECT_EQ(widget->focusPolicy(), Qt::NoFocus);
    EXPECT_NE(widget->cursor().shape(), Qt::OpenHandCursor);
    EXPECT_TRUE(
        widget->toolTip().contains(QString::fromUtf8(lock.GetReason().ConvertToChar()).toHtmlEscaped()));
    QTest::mouseClick(widget, Qt::LeftButton, {}, PositionOf(9));
    QTest::keyClick(widget, Qt::Key_End);
    EXPECT_EQ(moved->heard, 0);
    EXPECT_NE(Take(), free);
    lock.SetInfo(KivSettingInfo());
    Move(PositionOf(9));
    EXPECT_EQ(moved->heard, 0) << "what was let go of stays so";
    EXPECT_EQ(widget->focusPolicy(), Qt::StrongFocus);
}

// Destroys something when the point has been moved.
class Fate : public KivCommand {
public:
    Fate(Kiv2DManipulator& from, std::function<void()> die)
        : KivCommand(nullptr, "fate"), _die(std::move(die))
    {
        AddAnalyseNotificationCB(&from, from.GetManipulateNotification(), &Fate::Strike, nullptr);
    }
    void Strike(KivCommand*, KivNotification*, void*) { _die(); }

private:
    std::function<void()> _die;
};

TEST_F(NativeViewers, AnythingMayGoUnderTheHand)
{
    const std::function<void()> deaths[] = {
        [this] { delete graph; },
        [this] { delete &Node<KivDialog>("panelRasterView"); },
        [this] { delete widget->window(); },
        [this] { delete window->Session()->FindPage("View")->frame.Get(); },
        [this] { window.reset(); },
    };
    for (const auto& die : deaths) {
        for (const bool byKey : {true, false}) {
            SCOPED_TRACE(std::to_string(&die - deaths) + (byKey ? " by a key" : " by the pointer"));
            moved.reset();
            Open();
            moved.reset();
            int strokes = 0;
            const Fate fate(*graph->GetActiveManipulator(), [&] { ++strokes, die(); });
            const QPointer<QWidget> stays = widget;
            if (byKey) {
                QTest::keyClick(widget, Qt::Key_Right);
            } else {
                QTest::mousePress(widget, Qt::LeftButton, {}, QPoint(40, 70));
            }
            if (stays) QTest::keyClick(stays, Qt::Key_Right);
            Settle();
            EXPECT_EQ(strokes, 1);
        }
    }
}

TEST_F(NativeViewers, ThePictureIsSharpAndFollowsPointAndTheme)
{
    const auto at = [](const QImage& image, const QPoint& position) {
        return image.pixelColor(position * image.devicePixelRatio());
    };
    const auto show = [this](int level) { Spinner("spinHRVLOD").SetValue(level, 1); };
    const QColor base = usual.color(QPalette::Base), ink = usual.color(QPalette::Text);
    for (const int scale : {1, 2, 3}) {
        const QImage image = Take(scale);
        const QColor handle = at(image, PositionOf(4));
        EXPECT_GT(handle.saturation(), 100);
        EXPECT_GT(at(image, PositionOf(10)).saturation(), 60) << "no curve";
        // Across the axis there is surface and ink, and nothing between.
        int inked = 0;
        for (int x = 5 * scale; x < 20 * scale; ++x) {
            const QColor color = image.pixelColor(x, PositionOf({0.0, 15.0}).y() * scale);
            EXPECT_TRUE(color == base || color == ink) << scale << " at " << x;
            inked += color == ink;
        }
        EXPECT_EQ(inked, scale);
        show(13);
        const QImage after = Take(scale);
        EXPECT_EQ(at(after, PositionOf(4) + QPoint(3, 0)), base);
        EXPECT_EQ(at(after, PositionOf(13) + QPoint(3, 0)), handle);
        show(4);
    }
    QPalette dark(QColor(45, 46, 50));
    dark.setColor(QPalette::Base, QColor(32, 33, 36));
    dark.setColor(QPalette::Highlight, QColor(60, 110, 180));
    QApplication::setPalette(dark);
    QTest::qWait(1);
    EXPECT_EQ(at(Take(), PositionOf({40.0, 60.0})), QColor(32, 33, 36));
    graph->SetSensitivity(KivDlgDisabled);
    EXPECT_EQ(at(Take(2), PositionOf(4)), QColor(32, 33, 36)) << "a hollow handle";
    QFont large = widget->font();
    large.setPointSize(3 * large.pointSize());
    widget->setFont(large);
    EXPECT_GT(widget->sizeHint().width(), 150);
}

} // namespace

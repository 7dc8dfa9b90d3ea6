#include "NativeViewer.h"

#include "NativeFixture.h"
#include "Support/KivTestGraph.h"
#include "TestHand.h"
#include "TestPicture.h"

#include <QAccessible>
#include <QScrollBar>

namespace {

class NativeViewers : public testing::Test {
protected:
    void SetUp() override
    {
        area = ShowInArea(*page, QSize(160, 70));
        widget = static_cast<NativeViewer*>(NativePiece::Of(graph->viewer.Get())->Widget());
    }
    void TearDown() override
    {
        area.reset();
        graph.reset();
        page.reset();
        QApplication::setPalette(usual);
        EXPECT_EQ(KivBaseUnknown::LiveObjects(), before);
    }

    QPoint PlaceOf(const Kiv2DPoint& place) const { return widget->Graph().ToWindow(place).toPoint(); }
    QPoint PlaceOf(int level) const { return PlaceOf(KivTestGraph::OnCurve(KivTestGraph::kStep * level)); }
    void Move(const QPoint& to) const { TestHand::Drag(widget, to); }
    QImage Take(int scale = 1) const { return TestPicture::Take(*widget, scale); }

    long before = KivBaseUnknown::LiveObjects();
    QPalette usual = QApplication::palette();
    std::unique_ptr<KivEditorPage> page = std::make_unique<KivEditorPage>(nullptr, "page");
    std::unique_ptr<KivTestGraph> graph = std::make_unique<KivTestGraph>(page.get());
    std::unique_ptr<QScrollArea> area;
    NativeViewer* widget = nullptr;
};

TEST_F(NativeViewers, ThePointerDragsThePointAlongTheCurve)
{
    EXPECT_EQ(widget->size(), QSize(85, 85));
    EXPECT_EQ(widget->cursor().shape(), Qt::OpenHandCursor);
    const QPoint beside = PlaceOf(4) + QPoint(2, -3);
    QTest::mousePress(widget, Qt::LeftButton, {}, beside);
    EXPECT_EQ(graph->moves, 0) << "the handle jumped when it was taken";
    EXPECT_EQ(widget->cursor().shape(), Qt::ClosedHandCursor);
    Move(PlaceOf(9) + QPoint(2, 30));
    EXPECT_EQ(graph->level, 9);
    Move(QPoint(-400, 0));
    EXPECT_EQ(graph->level, 1);
    QTest::keyClick(widget, Qt::Key_Escape);
    EXPECT_EQ(graph->level, 4) << "let go of where it was taken";
    Move(PlaceOf(9));
    QTest::mouseRelease(widget, Qt::LeftButton, {}, PlaceOf(9));
    EXPECT_EQ(graph->level, 4);
    QTest::mouseClick(widget, Qt::LeftButton, {}, PlaceOf(12) + QPoint(0, 40));
    EXPECT_EQ(graph->level, 12) << "from elsewhere it comes to the pointer";
    QTest::mouseClick(widget, Qt::RightButton, {}, PlaceOf(2));
    EXPECT_EQ(graph->level, 12);
    EXPECT_EQ(widget->cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(NativeViewers, KeysStepAlsoFromRightToLeftAndTheWheelOnlyScrolls)
{
    area->setLayoutDirection(Qt::RightToLeft);
    widget->setFocus();
    std::vector<int> levels;
    for (const Qt::Key key :
         {Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_Home}) {
        QTest::keyClick(widget, key);
        levels.push_back(graph->level);
    }
    EXPECT_EQ(levels, (std::vector{5, 6, 5, 4, 15, 15, 1}));
    QTest::keyClick(widget, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(graph->level, 1) << "somebody else's shortcut";
    TestHand::Wheel(widget);
    EXPECT_GT(area->verticalScrollBar()->value(), 0);
    EXPECT_EQ(graph->level, 1);
}

TEST_F(NativeViewers, ScreenReadersFindASlider)
{
    graph->viewer->SetTitle("Level of detail");
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    ASSERT_TRUE(spoken && spoken->valueInterface());
    EXPECT_EQ(spoken->role(), QAccessible::Slider);
    EXPECT_EQ(spoken->text(QAccessible::Name), "Level of detail");
    EXPECT_EQ(spoken->text(QAccessible::Description), "Drag the point, or move it with the arrow keys.");
    EXPECT_EQ(spoken->text(QAccessible::Value), "4");
    QAccessibleValueInterface& value = *spoken->valueInterface();
    for (const auto& [said, expected] :
         {std::pair{value.minimumValue(), 1.0}, {value.maximumValue(), 15.0}, {value.minimumStepSize(), 1.0}})
        EXPECT_EQ(said.toDouble(), expected);
    value.setCurrentValue(11);
    EXPECT_EQ(graph->level, 11);
    EXPECT_EQ(value.currentValue().toDouble(), 11.0);
    delete graph->viewer.Get();
    value.setCurrentValue(3);
    EXPECT_FALSE(value.currentValue().isValid());
    EXPECT_EQ(graph->level, 11);
}

TEST_F(NativeViewers, ALockedOneIsGrayAndSaysWhyAndDoesNotMove)
{
    const QImage free = Take();
    KivSettingInfo info;
    auto* lock = new KivDlgLock(page.get(), "lock", info, 0);
    lock->AddAssociatedDialog(graph->viewer.Get());
    QTest::mousePress(widget, Qt::LeftButton, {}, PlaceOf(4));
    info.locked = true;
    lock->SetInfo(info); // comes under the hand that drags
    Move(PlaceOf(9));
    EXPECT_EQ(widget->focusPolicy(), Qt::NoFocus);
    EXPECT_NE(widget->cursor().shape(), Qt::OpenHandCursor);
    EXPECT_TRUE(
        widget->toolTip().contains(QString::fromUtf8(lock->GetReason().ConvertToChar()).toHtmlEscaped()));
    QTest::mouseClick(widget, Qt::LeftButton, {}, PlaceOf(9));
    QTest::keyClick(widget, Qt::Key_End);
    EXPECT_EQ(graph->moves, 0);
    EXPECT_NE(Take(), free);
    lock->SetInfo(KivSettingInfo());
    Move(PlaceOf(9));
    EXPECT_EQ(graph->moves, 0) << "what was let go of stays so";
    EXPECT_EQ(widget->focusPolicy(), Qt::StrongFocus);
}

TEST_F(NativeViewers, AnythingMayGoUnderTheHand)
{
    const std::function<void()> deaths[] = {
        [this] { delete graph->viewer.Get(); },
        [this] { graph->manipulator.reset(); },
        [this] { graph->viewer->GetRoot()->Remove(graph->point.Get()); },
        [this] { area.reset(); },
        [this] { page.reset(); },
    };
    for (const auto& die : deaths) {
        for (const bool byKey : {true, false}) {
            SCOPED_TRACE(std::to_string(&die - deaths) + (byKey ? " by a key" : " by the pointer"));
            area.reset();
            graph.reset();
            page = std::make_unique<KivEditorPage>(nullptr, "page");
            graph = std::make_unique<KivTestGraph>(page.get());
            SetUp();
            graph->instead = die;
            const QPointer<QWidget> stays = widget;
            if (byKey) {
                QTest::keyClick(widget, Qt::Key_Right);
            } else {
                QTest::mousePress(widget, Qt::LeftButton, {}, QPoint(40, 70));
            }
            EXPECT_EQ(graph->moves, 1);
            if (stays) QTest::keyClick(stays, Qt::Key_Right);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            EXPECT_EQ(graph->moves, 1);
        }
    }
}

TEST_F(NativeViewers, ThePictureIsSharpAndFollowsPointAndTheme)
{
    const auto at = [](const QImage& image, const QPoint& place) {
        return image.pixelColor(place * image.devicePixelRatio());
    };
    const QColor base = usual.color(QPalette::Base), ink = usual.color(QPalette::Text);
    for (const int scale : {1, 2, 3}) {
        const QImage image = Take(scale);
        const QColor handle = at(image, PlaceOf(4));
        EXPECT_GT(handle.saturation(), 100);
        EXPECT_GT(at(image, PlaceOf(10)).saturation(), 60) << "no curve";
        // Across the axis there is surface and ink, and nothing between.
        int inked = 0;
        for (int x = 5 * scale; x < 20 * scale; ++x) {
            const QColor color = image.pixelColor(x, PlaceOf({0.0, 15.0}).y() * scale);
            EXPECT_TRUE(color == base || color == ink) << scale << " at " << x;
            inked += color == ink;
        }
        EXPECT_EQ(inked, scale);
        graph->Show(13);
        const QImage moved = Take(scale);
        EXPECT_EQ(at(moved, PlaceOf(4) + QPoint(3, 0)), base);
        EXPECT_EQ(at(moved, PlaceOf(13) + QPoint(3, 0)), handle);
        graph->Show(4);
    }
    QPalette dark(QColor(45, 46, 50));
    dark.setColor(QPalette::Base, QColor(32, 33, 36));
    dark.setColor(QPalette::Highlight, QColor(60, 110, 180));
    QApplication::setPalette(dark);
    QTest::qWait(1);
    EXPECT_EQ(at(Take(), PlaceOf({40.0, 60.0})), QColor(32, 33, 36));
    graph->viewer->SetSensitivity(KivDlgDisabled);
    EXPECT_EQ(at(Take(2), PlaceOf(4)), QColor(32, 33, 36)) << "a hollow handle";
    QFont large = widget->font();
    large.setPointSize(3 * large.pointSize());
    widget->setFont(large);
    EXPECT_GT(widget->sizeHint().width(), 150);
}

} // namespace

#include "KivDrwSketcherSettings.h"
#include "Parameter/KivParmDictionary.h"
#include "Parameter/KivParmEngine.h"
#include "SheetAccessible.h"
#include "SheetLayout.h"
#include "SheetReaders.h"
#include "SheetRotation.h"
#include "SheetRuler.h"
#include "SheetView.h"
#include "TestHand.h"

#include <gtest/gtest.h>

namespace {

class SheetViews : public testing::Test {
protected:
    void Show(QSize size = {700, 500})
    {
        settings = std::make_unique<SheetSettings>(readers, sketcher);
        view = std::make_unique<SheetView>(*settings);
        view->SelectView(false);
        view->resize(size);
        view->show();
    }
    QImage Grab() const { return view->grab().toImage(); }
    // The color of a place of the sheet (mm) in a grab.
    QColor At(double x, double y) const
    {
        return Grab().pixelColor(view->Camera().ToWindow({x, y}).toPoint());
    }
    // Turns the handle of the view around its origin by a drag.
    void Turn(double degrees, Qt::KeyboardModifiers keys = {}) const
    {
        const QPointF middle = view->Camera().ToWindow(SheetLayout(view->Camera().Sheet()).viewCenter);
        QLineF arm(middle, view->Handle());
        QTest::mousePress(view.get(), Qt::LeftButton, {}, arm.p2().toPoint());
        arm.setAngle(arm.angle() + degrees);
        TestHand::Drag(view.get(), arm.p2(), keys);
        QTest::mouseRelease(view.get(), Qt::LeftButton, {}, arm.p2().toPoint());
    }

    SheetReaders readers;
    KivDrwSketcherSettings sketcher;
    std::unique_ptr<SheetSettings> settings;
    std::unique_ptr<SheetView> view;
};

TEST_F(SheetViews, ThePictureShowsColorAndGrid)
{
    readers.parts = 1;
    Show();
    // A line of the grid, beside all that is drawn on the sheet; and a place between the lines.
    const auto isOnGrid = [&] {
        const QImage grab = Grab();
        const QPoint at = view->Camera().ToWindow({250.0, 200.0}).toPoint();
        int marked = 0;
        for (int dy = -2; dy <= 2; ++dy)
            marked += grab.pixelColor(at + QPoint(0, dy)) != grab.pixelColor(at + QPoint(0, 9));
        return marked > 0;
    };
    EXPECT_EQ(At(250.0, 250.0), QColor(Qt::white));
    EXPECT_TRUE(isOnGrid());
    readers.grid = false;
    EXPECT_TRUE(isOnGrid()) << "not told yet";
    sketcher.GridModify();
    EXPECT_FALSE(isOnGrid());
    readers.component = 0;
    sketcher.SnapModify();
    EXPECT_EQ(At(250.0, 250.0), QColor(Qt::black));
    readers.graduated = true;
    sketcher.GridModify();
    EXPECT_GT(At(250.0, 15.0).lightness(), At(250.0, 280.0).lightness());
    view->SetFormat(SheetFormat::Named("A4"), false);
    EXPECT_EQ(view->Camera().Sheet(), QSizeF(210.0, 297.0));
}

TEST_F(SheetViews, NothingThatIsStoredMakesPaintingSlow)
{
    for (const double value : {0.0, -1.0, SheetReaders::kNan, SheetReaders::kInfinite, SheetReaders::kHuge,
                               SheetReaders::kTiny, 1.0e-6, 1.0e9})
        for (const int parts : {INT_MIN, 0, INT_MAX})
            for (const double zoom : {1.0e-9, 1.0, 1.0e9}) {
                readers.spacing = readers.spacingV = readers.axis = readers.angle = value;
                readers.parts = readers.partsV = parts;
                Show({400, 300});
                view->SelectView(true);
                view->ZoomTo(zoom);
                QTest::mouseMove(view.get(), QPoint(200, 150));
                QElapsedTimer clock;
                clock.start();
                ASSERT_FALSE(Grab().isNull());
                ASSERT_LT(clock.elapsed(), 500) << value << ", " << parts << ", " << zoom;
            }
}

TEST_F(SheetViews, TheHandTurnsTheViewBySnapAngles)
{
    Show();
    view->SelectView(true);
    Turn(37.0);
    EXPECT_NEAR(view->Rotation(), 37.0, 1.5) << "free without Shift";
    Turn(10.0, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(view->Rotation(), 45.0);
    readers.always = true;
    sketcher.SnapModify();
    Turn(-63.0);
    EXPECT_DOUBLE_EQ(view->Rotation(), 345.0);
    QTest::keyClick(view.get(), Qt::Key_Left);
    EXPECT_DOUBLE_EQ(view->Rotation(), 0.0);
    QTest::keyClick(view.get(), Qt::Key_Right);
    EXPECT_DOUBLE_EQ(view->Rotation(), 345.0);

    SheetAccessible spoken(*view);
    EXPECT_EQ(spoken.text(QAccessible::Value), "345°");
    EXPECT_FALSE(spoken.text(QAccessible::Name).isEmpty());
    spoken.setCurrentValue(90.0);
    EXPECT_DOUBLE_EQ(view->Rotation(), 90.0);

    for (const double angle : {0.0, -15.0, SheetReaders::kNan}) {
        readers.angle = angle;
        sketcher.SnapModify();
        EXPECT_DOUBLE_EQ(SheetRotation::Dragged(33.3, settings->Style(), true), 33.3);
        EXPECT_DOUBLE_EQ(SheetRotation::Stepped(33.0, settings->Style(), 1), 34.0);
    }
    EXPECT_DOUBLE_EQ(SheetRotation::Normal(-1.0e-20), 0.0);
    EXPECT_DOUBLE_EQ(SheetRotation::Normal(SheetReaders::kNan), 0.0);
    readers.angle = 100.0;
    sketcher.SnapModify();
    EXPECT_DOUBLE_EQ(SheetRotation::Dragged(-110.0, settings->Style(), true), 260.0);
    EXPECT_DOUBLE_EQ(SheetRotation::Stepped(99.0, settings->Style(), 1), 100.0);
}

TEST_F(SheetViews, ThePlaceSnapsToTheGridAndIsSaidInTheUsersUnit)
{
    readers.spacing = 25.4;
    readers.parts = 2;
    Show();
    QString place;
    QObject::connect(view.get(), &SheetView::PlaceChanged, [&](const QString& words) { place = words; });
    const QPoint at = view->Camera().ToWindow({26.0, 52.0}).toPoint();
    QTest::mouseMove(view.get(), at);
    EXPECT_EQ(place, "H 25.4 mm   V 50.8 mm");
    KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, "INCH");
    EXPECT_EQ(place, "H 1 in   V 2 in");
    KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, "MM");
    readers.snaps = false;
    sketcher.SnapModify();
    EXPECT_NE(place, "H 25.4 mm   V 50.8 mm");
    QTest::mouseMove(view.get(), QPoint(1, 1) + QPoint(30, 30));
    EXPECT_EQ(place, "") << "the desk is no place of the sheet";
}

TEST_F(SheetViews, ZoomAndPanAreBounded)
{
    Show();
    const QPointF around = view->rect().center();
    const QPointF fixed = view->Camera().ToSheet(around);
    TestHand::Wheel(view.get());
    EXPECT_LT(QLineF(view->Camera().ToSheet(around), fixed).length(), 1.0e-6) << "it stays under the cursor";
    for (int i = 0; i < 200; ++i) view->ZoomIn();
    EXPECT_LE(view->Camera().Zoom(), SheetCamera::kLargest * 1.000001);
    for (int i = 0; i < 400; ++i) view->ZoomOut();
    EXPECT_GE(view->Camera().Zoom(), SheetCamera::kSmallest * 0.999999);
    QTest::keyClick(view.get(), Qt::Key_Escape);
    view->ZoomTo(1.0);
    for (int i = 0; i < 200; ++i) QTest::keyClick(view.get(), Qt::Key_Right);
    EXPECT_LE(view->Camera().ToSheet(view->Camera().Area().center()).x(), 420.0);
    view->ZoomToFit();
    EXPECT_TRUE(view->rect().contains(view->Camera().ToWindow({0.0, 0.0}).toPoint()));

    // Space and the left button move the paper with the hand; the view is not let go meanwhile.
    view->SelectView(true);
    const QPointF before = view->Camera().ToWindow({0.0, 0.0});
    QTest::keyPress(view.get(), Qt::Key_Space);
    QTest::mousePress(view.get(), Qt::LeftButton, {}, QPoint(300, 250));
    TestHand::Drag(view.get(), {320, 240});
    QTest::mouseRelease(view.get(), Qt::LeftButton, {}, QPoint(320, 240));
    QTest::keyRelease(view.get(), Qt::Key_Space);
    EXPECT_LT(QLineF(view->Camera().ToWindow({0.0, 0.0}) - before, QPointF(20.0, -10.0)).length(), 1.0e-6);
    EXPECT_TRUE(view->IsViewSelected());
}

TEST_F(SheetViews, RulersCountInTheUsersUnit)
{
    for (const char* const unit : {"MM", "KM", "INCH", "F_I_DEC", "F_I_F16"}) {
        KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, unit);
        for (const double pixels : {0.05, 2.0, 250.0}) {
            const auto marks = SheetRuler::Marks(-100.0, 500.0, pixels, 50.0);
            EXPECT_LT(marks.size(), 600.0 * pixels / 3.9 + 3.0) << unit << ", " << pixels;
            double last = -1.0e9;
            for (const SheetRuler::Mark& mark : marks) {
                if (mark.rank != 0) continue;
                EXPECT_GE((mark.at - last) * pixels, 49.999) << unit << ", " << pixels;
                last = mark.at;
            }
        }
    }
    EXPECT_EQ(SheetRuler::Marks(304.0, 310.0, 2.0, 50.0).front().label, "1'");
    KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, "MM");
}

} // namespace

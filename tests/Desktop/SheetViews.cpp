#include "Parameter/KivParmEngine.h"
#include "Parameter/KivParmMagnitude.h"
#include "Sheet/SheetAccessible.h"
#include "Sheet/SheetLayout.h"
#include "Sheet/SheetRotation.h"
#include "Sheet/SheetRulers.h"
#include "SheetFixture.h"
#include "TestHand.h"

namespace {

using namespace KivDrwKeys;

class SheetViews : public SheetFixture {
protected:
    // The color of a position of the sheet (mm) in a grab.
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
};

TEST_F(SheetViews, ThePictureShowsColorAndGrid)
{
    Write(Drw_settings_GridSecondaryStep, 1);
    sketcher.GridModify();
    // A line of the grid, beside all that is drawn on the sheet; and a position between the lines.
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
    Write(Drw_settings_GridDisplay, 0);
    EXPECT_TRUE(isOnGrid()) << "not told yet";
    sketcher.GridModify();
    EXPECT_FALSE(isOnGrid());
    for (const auto& key : {BackgroundColorRed, BackgroundColorGreen, BackgroundColorBlue}) Write(key, 0.0F);
    sketcher.SnapModify();
    EXPECT_EQ(At(250.0, 250.0), QColor(Qt::black));
    Write(GraduatedColor, 1);
    sketcher.GridModify();
    EXPECT_GT(At(250.0, 15.0).lightness(), At(250.0, 280.0).lightness());
    view->SetFormat(SheetFormat::Named("A4"), false);
    EXPECT_EQ(view->Camera().Sheet(), QSizeF(210.0, 297.0));
}

TEST_F(SheetViews, TheHandTurnsTheViewBySnapAngles)
{
    view->SelectView(true);
    Turn(37.0);
    EXPECT_NEAR(view->Rotation(), 37.0, 1.5) << "free without Shift";
    Turn(10.0, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(view->Rotation(), 45.0);
    Write(RotSnapAuto, 1);
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

    for (const double angle : {0.0, -15.0}) {
        Write(RotSnapAngle, angle);
        sketcher.SnapModify();
        EXPECT_DOUBLE_EQ(SheetRotation::Dragged(33.3, settings.Style(), true), 33.3);
        EXPECT_DOUBLE_EQ(SheetRotation::Stepped(33.0, settings.Style(), 1), 34.0);
    }
    EXPECT_DOUBLE_EQ(SheetRotation::Normal(-1.0e-20), 0.0);
    EXPECT_DOUBLE_EQ(SheetRotation::Normal(std::numeric_limits<double>::quiet_NaN()), 0.0);
    Write(RotSnapAngle, 100.0);
    sketcher.SnapModify();
    EXPECT_DOUBLE_EQ(SheetRotation::Dragged(-110.0, settings.Style(), true), 260.0);
    EXPECT_DOUBLE_EQ(SheetRotation::Stepped(99.0, settings.Style(), 1), 100.0);
}

TEST_F(SheetViews, ThePlaceSnapsToTheGridAndIsSaidInTheUsersUnit)
{
    Write(Drw_settings_GridPrimarySpacing, 25.4);
    Write(Drw_settings_GridSecondaryStep, 2);
    sketcher.GridModify();
    QString position;
    QObject::connect(view.get(), &SheetView::PositionChanged,
                     [&](const QString& words) { position = words; });
    const QPoint at = view->Camera().ToWindow({26.0, 52.0}).toPoint();
    QTest::mouseMove(view.get(), at);
    EXPECT_EQ(position, "H 25.4 mm   V 50.8 mm");
    KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, "INCH");
    EXPECT_EQ(position, "H 1 in   V 2 in");
    KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, "MM");
    Write(Drw_settings_GridSnapPt, 0);
    sketcher.SnapModify();
    EXPECT_NE(position, "H 25.4 mm   V 50.8 mm");
    QTest::mouseMove(view.get(), QPoint(1, 1) + QPoint(30, 30));
    EXPECT_EQ(position, "") << "the desk is no position of the sheet";
}

TEST_F(SheetViews, ZoomAndPanAreBounded)
{
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

#include "Sheet/SheetAccessible.h"
#include "Sheet/SheetLayout.h"
#include "Sheet/SheetPicture.h"
#include "SheetFixture.h"
#include "TestPicture.h"

#include <QPainter>
#include <QPicture>

namespace {

using namespace KivDrwKeys;

class SheetSketches : public SheetFixture {
protected:
    // How many points of the sketch have a color.
    int Count(QRgb color) const
    {
        return TestPicture::Count(Grab().copy(view->SketchFrame().toAlignedRect()), QColor(color));
    }
};

TEST_F(SheetSketches, EachSettingShowsWhenTheSketcherIsToldAndIsTakenBack)
{
    const QImage before = Grab();
    const QRect frame = view->SketchFrame().toAlignedRect();
    const auto expectChange = [&](const char* name) {
        EXPECT_EQ(Grab(), before) << name << ": not told yet";
        sketcher.GeomUIModify();
        QImage after = Grab();
        EXPECT_NE(after, before) << name;
        for (int y = frame.top(); y <= frame.bottom(); ++y)
            for (int x = frame.left(); x <= frame.right(); ++x) after.setPixel(x, y, before.pixel(x, y));
        EXPECT_EQ(after, before) << name << ": beside the sketch";
        repository.Rollback();
        EXPECT_EQ(Grab(), before) << name << ": taken back";
    };
    for (const auto& key : {CstVisu, CstVisuHori, CstVisuVerti, CstVisuPara, CstVisuPerpen, CstVisuConcen,
                            CstVisuCoinci, CstVisuTangen, CstVisuSym, CstColorR, CstColorG, CstColorB,
                            DrwEndPtsDuplGenGeom, Drw_settings_CreateCenter, Drw_settings_DragElts,
                            Drw_settings_DragWithEndPts, Drw_settings_ShowPosition, Drw_settings_DiagElts}) {
        Write(key, key.makeDefault() ? 0 : 255);
        expectChange(key.name);
    }
    const unsigned int odd = 0x12ABCDU;
    for (const auto& key : {Drw_settings_ColorDiagOverDefinedElts, Drw_settings_ColorDiagNotConsistentElts,
                            Drw_settings_ColorDiagNotChangedElts, Drw_settings_ColorDiagWellDefinedElts}) {
        Write(key, odd);
        expectChange(key.name);
        Write(key, odd);
        sketcher.SetDiagElts(1, 1);
        EXPECT_GT(Count(odd), 10) << key.name << ": as it was chosen";
        sketcher.SetDiagElts(0, 1);
        EXPECT_EQ(Count(odd), 0) << key.name << ": its switch is off";
        repository.Rollback();
    }
    Write(Drw_settings_ColorConstructElts, odd);
    expectChange(Drw_settings_ColorConstructElts.name);
    Write(CstRefSize, 3.0);
    expectChange(CstRefSize.name);
}

// OK on the page of these settings tells the sketcher nothing.
TEST_F(SheetSketches, OkIsFollowedWithoutANotification)
{
    const QImage before = Grab();
    sketcher.SetDiagElts(0, 0);
    Write(Drw_settings_ColorConstructElts, 0xFF0000U);
    EXPECT_EQ(Grab(), before);
    ASSERT_EQ(repository.SaveRepository(nullptr), S_OK);
    EXPECT_NE(Grab(), before);
    EXPECT_EQ(settings.Sketch().construction, QColor(Qt::red));
}

TEST_F(SheetSketches, APointerMarksWhatItWouldPick)
{
    const unsigned int odd = 0x12ABCDU;
    Write(Drw_settings_ColorSmartPick, odd);
    sketcher.GeomUIModify();
    // In the sketch's mm around its middle: on the left line; level with the foot, right of it; beside all.
    const auto point = [&](double x, double y) {
        const QRectF frame = view->SketchFrame();
        const double scale = frame.width() / 112.0;
        QTest::mouseMove(view.get(), (frame.center() + QPointF(x, -y) * scale).toPoint());
        return Count(odd);
    };
    EXPECT_GT(point(-44.0, 16.0), 10);
    EXPECT_GT(point(48.0, -12.0), 10);
    EXPECT_EQ(point(50.0, 40.0), 0);
    sketcher.SetPosSupports(0, 1);
    sketcher.SetPosHorVertTo(0, 1);
    EXPECT_EQ(point(-44.0, 16.0), 0);
    EXPECT_EQ(point(48.0, -12.0), 0);
}

TEST_F(SheetSketches, NothingThatIsStoredMakesPaintingLong)
{
    const auto painted = [this] {
        EXPECT_FALSE(Grab().isNull());
        QPicture strokes;
        QPainter painter(&strokes);
        SheetPicture(settings.Style(), settings.Sketch(), view->Look(), view->Camera(), 0.0, "A3")
            .Paint(painter);
        painter.end();
        return strokes.size();
    };
    const unsigned int usual = painted();
    EXPECT_GT(usual, 1000U);
    for (const double size : {-1.0, 0.0, 1.0e-300, 1.0e-6, 100.0, 1.0e9, 1.0e300})
        for (const int number : {INT_MIN, -1, INT_MAX})
            for (const double zoom : {1.0e-9, 1.0, 1.0e9}) {
                for (const auto& key : {CstRefSize, ViewAxisSize, RotSnapAngle,
                                        Drw_settings_GridPrimarySpacing, Drw_settings_GridVPrimarySpacing})
                    Write(key, size);
                for (const auto& key :
                     {CstVisu, CstVisuHori, CstColorR, CstColorG, CstColorB, Drw_settings_DragModeR14,
                      Drw_settings_DiagElts, Drw_settings_GridSecondaryStep, Drw_settings_GridVSecondaryStep})
                    Write(key, number);
                Write(Drw_settings_ColorDiagWellDefinedElts, static_cast<unsigned int>(number));
                Write(Drw_settings_ColorSmartPick, static_cast<unsigned int>(number));
                sketcher.GridModify();
                sketcher.CpltModify();
                view->SelectView(true);
                view->ZoomTo(zoom);
                QTest::mouseMove(view.get(), view->SketchFrame().center().toPoint());
                ASSERT_LT(painted(), 3 * usual) << size << ", " << number << ", " << zoom;
                ASSERT_GE(settings.Sketch().symbolSize, 0.0);
            }
    const SheetSettings without(drafting, sketcher); // has no repository
    EXPECT_EQ(without.Sketch().symbolSize, 2.0);
}

TEST_F(SheetSketches, AScreenReaderIsToldWhatIsShown)
{
    SheetAccessible sheet(*view);
    ASSERT_EQ(sheet.childCount(), 1);
    QAccessibleInterface* const sketch = sheet.child(0);
    EXPECT_EQ(sheet.indexOfChild(sketch), 0);
    EXPECT_EQ(sheet.childAt(sketch->rect().center().x(), sketch->rect().center().y()), sketch);
    EXPECT_FALSE(sketch->text(QAccessible::Name).isEmpty());
    EXPECT_TRUE(sketch->text(QAccessible::Description).contains("tangent"));
    Write(CstVisuTangen, 0);
    sketcher.CpltModify();
    EXPECT_FALSE(sketch->text(QAccessible::Description).contains("tangent"));
    EXPECT_TRUE(sketch->text(QAccessible::Description).contains("symmetric"));
    view->ZoomTo(64.0);
    EXPECT_TRUE(sketch->state().offscreen);
    view.reset();
    EXPECT_FALSE(sketch->isValid());
}

// Every format has room for the sketch beside the view, detail and title block.
TEST_F(SheetSketches, ItCoversNothingElse)
{
    for (const SheetFormat& format : SheetFormat::All())
        for (const bool isLandscape : {true, false}) {
            view->SetFormat(format, isLandscape);
            const SheetLayout layout(view->Camera().Sheet());
            const auto inWindow = [&](const QRectF& paper) {
                return QRectF(view->Camera().ToWindow(paper.topLeft()),
                              view->Camera().ToWindow(paper.bottomRight()))
                    .normalized();
            };
            const QRectF sketch = view->SketchFrame();
            EXPECT_TRUE(inWindow(layout.border).contains(sketch)) << format.name << isLandscape;
            for (const QRectF& other :
                 {layout.titleBlock, layout.detail, layout.ViewFrame().translated(layout.viewCenter)})
                EXPECT_FALSE(inWindow(other).intersects(sketch)) << format.name << isLandscape;
        }
}

} // namespace

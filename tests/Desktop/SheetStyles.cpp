#include "Common/SheetColors.h"
#include "Sheet/SheetGrid.h"
#include "SheetFixture.h"

namespace {

using namespace KivDrwKeys;

using SheetStyles = SheetFixture;

TEST_F(SheetStyles, WhateverIsStoredIsMadeFitForDrawing)
{
    struct Case {
        double stored, spacing, axis, angle;
    };
    for (const Case& c : {Case{20.0, 20.0, 20.0, 20.0}, Case{0.0, 0.0, 0.0, 0.0}, Case{-5.0, 0.0, 0.0, 0.0},
                          Case{1.0e300, 1.0e300, 1.0e5, 0.0}, Case{kTiny, kTiny, kTiny, 0.0},
                          Case{360.0, 360.0, 360.0, 0.0}}) {
        for (const auto& key : {Drw_settings_GridPrimarySpacing, ViewAxisSize, RotSnapAngle})
            Write(key, c.stored);
        const SheetStyle style = SheetStyle::Read(drafting);
        EXPECT_EQ(style.spacingH, c.spacing) << c.stored;
        EXPECT_EQ(style.spacingV, c.spacing) << "the vertical grid follows the horizontal one";
        EXPECT_EQ(style.axisLength, c.axis) << c.stored;
        EXPECT_EQ(style.snapAngle, c.angle) << c.stored;
    }
    Write(Drw_settings_GridSecondaryStep, INT_MIN);
    Write(Drw_settings_GridVSecondaryStep, 0);
    Write(Drw_settings_AllowDistortions, 1);
    Write(Drw_settings_GridVPrimarySpacing, 7.0);
    Write(BackgroundColorRed, -1.0e38F);
    Write(BackgroundColorGreen, 5.0F);
    const SheetStyle style = SheetStyle::Read(drafting);
    EXPECT_EQ(style.partsH, 1);
    EXPECT_EQ(style.partsV, 1);
    EXPECT_EQ(style.spacingV, 7.0);
    EXPECT_EQ(style.sheet.green(), 255);
}

TEST_F(SheetStyles, GraduationsGoFirstThenPrimaryLinesAreThinned)
{
    const auto all = SheetGrid(100.0, 10).Lines(0.0, 420.0, 1.0);
    EXPECT_EQ(all.size(), 43U);
    EXPECT_EQ(std::count_if(all.begin(), all.end(), [](const auto& line) { return line.primary; }), 5);
    EXPECT_TRUE(all[10].primary);
    EXPECT_EQ(SheetGrid(100.0, 10).Lines(0.0, 420.0, 0.39).size(), 5U) << "3.9 pixels are too close";
    const auto thinned = SheetGrid(1.0, 10).Lines(0.0, 100.0, 1.0);
    ASSERT_EQ(thinned.size(), 21U);
    EXPECT_EQ(thinned[1].at, 5.0);
    EXPECT_EQ(SheetGrid(100.0, 10).Lines(100.0, 200.0, 1.0).front().at, 100.0)
        << "at the edge of what is seen";
    EXPECT_TRUE(SheetGrid(0.0, 10).Lines(0.0, 420.0, 4.0).empty());
    EXPECT_EQ(SheetGrid(0.0, 10).Nearest(12.3, 420.0), 12.3);
    for (const double spacing : {kTiny, kHuge})
        EXPECT_LE(SheetGrid(spacing, INT_MAX).Nearest(133.7, 420.0), 420.0 + 1.0e-6) << spacing;
    EXPECT_DOUBLE_EQ(SheetGrid(100.0, 8).Nearest(99.0, 420.0), 100.0);
    EXPECT_DOUBLE_EQ(SheetGrid(100.0, 10).Nearest(296.9, 297.0), 290.0) << "300 is beyond the sheet";
}

TEST_F(SheetStyles, LinesStandOutOnEverySheet)
{
    for (const int red : {0, 255})
        for (const int green : {0, 255})
            for (const int blue : {0, 255})
                for (const bool graduated : {false, true}) {
                    const QColor sheet(red, green, blue);
                    const SheetColors colors(sheet, graduated);
                    for (const QColor& wanted :
                         {sheet, QColor(Qt::red), QColor(Qt::darkBlue), QColor(Qt::gray)})
                        EXPECT_GE(SheetColors::Contrast(colors.Accent(wanted), sheet), 4.5)
                            << sheet.name().toStdString() << wanted.name().toStdString();
                }
}

// The stored values change at once while options are edited; the sheet waits to be told.
TEST_F(SheetStyles, TheStyleFollowsNotificationsAndOnlyThem)
{
    int changes = 0;
    QObject::connect(&settings, &SheetSettings::Changed, [&] { ++changes; });
    {
        const SheetSettings gone(drafting, sketcher);
    }
    Write(Drw_settings_GridPrimarySpacing, 40.0);
    EXPECT_EQ(settings.Style().spacingH, 100.0);
    sketcher.GridModify(); // nobody calls the one that is gone
    EXPECT_EQ(settings.Style().spacingH, 40.0);
    sketcher.SnapModify();
    EXPECT_EQ(changes, 1) << "nothing is drawn anew when nothing changed";
    repository.Rollback();
    sketcher.SnapModify();
    EXPECT_EQ(settings.Style().spacingH, 100.0);
}

} // namespace

#include "KivDrwDraftingSettings.h"
#include "KivDrwKeys.h"
#include "KivDrwSketcherSettings.h"
#include "SheetColors.h"
#include "SheetGrid.h"
#include "SheetReaders.h"
#include "SheetSettings.h"
#include "Support/KivSettingsSandbox.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

TEST(SheetStyles, WhateverIsStoredIsMadeFitForDrawing)
{
    struct Case {
        double stored, spacing, axis, angle;
    };
    for (const Case& c :
         {Case{20.0, 20.0, 20.0, 20.0}, Case{0.0, 0.0, 0.0, 0.0}, Case{-5.0, 0.0, 0.0, 0.0},
          Case{SheetReaders::kNan, 0.0, 0.0, 0.0}, Case{SheetReaders::kInfinite, 0.0, 1.0e5, 0.0},
          Case{-SheetReaders::kInfinite, 0.0, 0.0, 0.0}, Case{1.0e300, 1.0e300, 1.0e5, 0.0},
          Case{SheetReaders::kTiny, SheetReaders::kTiny, SheetReaders::kTiny, 0.0},
          Case{360.0, 360.0, 360.0, 0.0}}) {
        SheetReaders readers;
        readers.spacing = readers.axis = readers.angle = c.stored;
        const SheetStyle style = SheetStyle::Read(readers);
        EXPECT_EQ(style.spacingH, c.spacing) << c.stored;
        EXPECT_EQ(style.spacingV, c.spacing) << "the vertical grid follows the horizontal one";
        EXPECT_EQ(style.axisLength, c.axis) << c.stored;
        EXPECT_EQ(style.snapAngle, c.angle) << c.stored;
    }
    SheetReaders readers;
    readers.parts = INT_MIN;
    readers.partsV = 0;
    readers.component = 0x7FFFFFFF;
    readers.distorted = true;
    readers.spacingV = 7.0;
    SheetStyle style = SheetStyle::Read(readers);
    EXPECT_EQ(style.partsH, 1);
    EXPECT_EQ(style.partsV, 1);
    EXPECT_EQ(style.spacingV, 7.0);
    EXPECT_EQ(style.sheet, QColor(Qt::white));
    readers.component = INT_MIN;
    EXPECT_EQ(SheetStyle::Read(readers).sheet, QColor(Qt::black));
}

TEST(SheetStyles, AGridIsBoundedByThePixelsItIsShownOn)
{
    for (const double spacing :
         {SheetReaders::kTiny, 1.0e-300, 1.0e-9, 0.3, 100.0, 1.0e300, SheetReaders::kHuge})
        for (const int parts : {1, 3, 10, INT_MAX})
            for (const double pixels : {0.05, 3.78, 250.0}) {
                const SheetGrid grid(spacing, parts);
                const auto lines = grid.Lines(0.0, 420.0, pixels);
                ASSERT_LE(lines.size(), 420.0 * pixels / SheetGrid::kClosest + 2.0)
                    << spacing << " / " << parts;
                for (std::size_t i = 1; i < lines.size(); ++i)
                    ASSERT_GE((lines[i].at - lines[i - 1].at) * pixels, SheetGrid::kClosest * 0.999);
                for (const double place : {0.0, 133.7, 420.0}) {
                    ASSERT_GE(grid.Nearest(place, 420.0), 0.0);
                    ASSERT_LE(grid.Nearest(place, 420.0), 420.0 + 1.0e-6) << spacing << " / " << parts;
                }
            }
    EXPECT_TRUE(SheetGrid(0.0, 10).Lines(0.0, 420.0, 4.0).empty());
    EXPECT_EQ(SheetGrid(0.0, 10).Nearest(12.3, 420.0), 12.3);
}

TEST(SheetStyles, GraduationsGoFirstThenPrimaryLinesAreThinned)
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
    EXPECT_DOUBLE_EQ(SheetGrid(100.0, 8).Nearest(99.0, 420.0), 100.0);
    EXPECT_DOUBLE_EQ(SheetGrid(100.0, 10).Nearest(296.9, 297.0), 290.0) << "300 is beyond the sheet";
}

TEST(SheetStyles, LinesStandOutOnEverySheet)
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
TEST(SheetStyles, TheStyleFollowsNotificationsAndOnlyThem)
{
    const KivSettingsSandbox box;
    KivSettingRepository& repository = box.Reopen();
    KivDrwDraftingSettings drafting;
    KivDrwSketcherSettings sketcher;
    SheetSettings settings(drafting, sketcher);
    int changes = 0;
    QObject::connect(&settings, &SheetSettings::Changed, [&] { ++changes; });
    const auto write = [&](double spacing) {
        repository.WriteSetting(KivDrwKeys::Drw_settings_GridPrimarySpacing.name, &spacing, 1, 0);
    };

    write(40.0);
    sketcher.CpltModify();
    sketcher.GeomUIModify();
    EXPECT_EQ(settings.Style().spacingH, 100.0);
    sketcher.GridModify();
    EXPECT_EQ(settings.Style().spacingH, 40.0);
    sketcher.SnapModify();
    EXPECT_EQ(changes, 1) << "nothing is drawn anew when nothing changed";
    repository.Rollback();
    EXPECT_EQ(settings.Style().spacingH, 40.0);
    sketcher.SnapModify();
    EXPECT_EQ(settings.Style().spacingH, 100.0);
    {
        const SheetSettings gone(drafting, sketcher);
    }
    write(50.0);
    sketcher.GridModify(); // nobody calls the one that is gone
    EXPECT_EQ(changes, 3);
}

} // namespace

#include "NativeFixture.h"

namespace {

using NativeLayout = NativeFixture;

TEST_F(NativeLayout, PadlocksLabelsAndFieldsAlignDownAGroup)
{
    const auto left = [](const KivDialog* node) { return PlaceOf(node).x(); };
    EXPECT_EQ(left(LockOf(tree.show)), left(LockOf(tree.snap)));
    EXPECT_EQ(left(LockOf(tree.show)), left(LockOf(tree.distort)));
    EXPECT_EQ(left(tree.show), left(tree.horizontal->GetLabel()));
    EXPECT_EQ(left(tree.show), left(tree.angle->GetLabel()));
    EXPECT_EQ(left(tree.horizontal), left(tree.angle));
    EXPECT_EQ(left(LockOf(tree.horizontal)), left(LockOf(tree.angle)));
    EXPECT_EQ(left(tree.background), left(tree.file));
    EXPECT_GT(left(tree.vertical), left(tree.horizontal));
    EXPECT_EQ(PlaceOf(tree.horizontal).y(), PlaceOf(tree.vertical).y());
    // What only keeps the place of a padlock is not seen.
    const KivDialog* space = tree.horizontal->GetLabel()->GetParentDialog()->Children()[0];
    EXPECT_FALSE(WidgetOf(space)->isVisible());
    EXPECT_EQ(WidgetOf(space)->sizeHint(), WidgetOf(LockOf(tree.show))->sizeHint());
    EXPECT_TRUE(WidgetOf(space)->sizePolicy().retainSizeWhenHidden());
    // A long title does not push the fields of other rows aside.
    EXPECT_LT(left(tree.horizontal), left(tree.show) + WidgetOf(tree.show)->width());
    EXPECT_LE(WidgetOf(tree.vertical)->geometry().right(), WidgetOf(tree.grid)->width());
}

TEST_F(NativeLayout, ATextFieldIsAsWideAsItsPageAsks)
{
    const int usual = WidgetOf(tree.file)->sizeHint().width();
    tree.file->SetVisibleTextWidth(45);
    EXPECT_GT(WidgetOf(tree.file)->sizeHint().width(), 2 * usual);
}

TEST_F(NativeLayout, LabelsNameTheirFields)
{
    const std::pair<KivDialog*, const char*> names[] = {{tree.vertical, "Vertical spacing"},
                                                        {tree.horizontal, "Primary spacing"},
                                                        {tree.angle, "Snap angle"},
                                                        {tree.direction, "Gradient direction"},
                                                        {tree.colors, "Colors & lines"}};
    for (const auto& [node, name] : names) EXPECT_EQ(WidgetOf(node)->accessibleName(), name);
    EXPECT_EQ(WidgetOf(tree.show)->whatsThis(),
              "Draws the grid on the sheet, below everything else. It is never printed.");
    // The letter of a label leads to its field.
    QTest::keyClick(area.get(), Qt::Key_P, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), WidgetOf(tree.horizontal));
    // It grays with its field.
    tree.horizontal->SetSensitivity(KivDlgDisabled);
    EXPECT_FALSE(WidgetOf(tree.horizontal->GetLabel())->isEnabled());
}

TEST_F(NativeLayout, IsMirroredFromRightToLeft)
{
    area->setLayoutDirection(Qt::RightToLeft);
    QTest::qWait(1);
    EXPECT_GT(PlaceOf(LockOf(tree.show)).x(), PlaceOf(tree.show).x());
    EXPECT_GT(PlaceOf(tree.horizontal).x(), PlaceOf(tree.vertical).x());
}

} // namespace

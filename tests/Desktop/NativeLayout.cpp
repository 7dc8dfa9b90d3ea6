#include "NativeFixture.h"

#include <QCheckBox>
#include <QLabel>

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

TEST_F(NativeLayout, AReservedControlKeepsItsPlaceUnseen)
{
    auto* space =
        static_cast<KivDlgCheckButton*>(tree.horizontal->GetLabel()->GetParentDialog()->Children()[0]);
    ASSERT_EQ(space->GetVisibility(), KivDlgReserved);
    QWidget* widget = WidgetOf(space);
    EXPECT_FALSE(widget->isVisible());
    EXPECT_EQ(widget->sizeHint(), WidgetOf(LockOf(tree.show))->sizeHint());
    EXPECT_TRUE(widget->sizePolicy().retainSizeWhenHidden());
}

TEST_F(NativeLayout, TabGoesInReadingOrderAndVisitsClosedPadlocks)
{
    const KivDialog* const order[] = {
        tree.show,       LockOf(tree.snap),         tree.distort, tree.horizontal, LockOf(tree.angle),
        tree.background, LockOf(tree.lockedColour), tree.type,    tree.weight,     tree.direction,
        tree.file};
    WidgetOf(order[0])->setFocus();
    for (const KivDialog* node : order) {
        ASSERT_EQ(QApplication::focusWidget(), WidgetOf(node)) << node->KivCommand::GetName().ConvertToChar();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(NativeLayout, EveryControlHasANameAndEveryLabelItsPartner)
{
    int controls = 0;
    const QList<QWidget*> widgets = area->widget()->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const auto* piece = dynamic_cast<const NativePiece*>(widget);
        if (!piece) continue;
        ++controls;
        const std::string name = widget->objectName().toStdString();
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << name;
        EXPECT_FALSE(widget->accessibleName().contains("_dialog")) << name;
        const bool isField = piece->Node()->IsAKindOf(KivDlgControl::Name) &&
                             !piece->Node()->IsAKindOf(KivDlgCheckButton::Name);
        EXPECT_FALSE(isField && widget->accessibleDescription().isEmpty()) << name;
        const auto* label = dynamic_cast<const QLabel*>(widget);
        EXPECT_FALSE(label && !label->buddy()) << name;
        EXPECT_FALSE(!widget->isEnabled() && widget->toolTip().isEmpty()) << name;
    }
    EXPECT_GE(controls, 30);
    EXPECT_EQ(WidgetOf(tree.vertical)->accessibleName(), "Vertical spacing");
    EXPECT_EQ(WidgetOf(tree.horizontal)->accessibleName(), "Primary spacing");
    EXPECT_EQ(WidgetOf(tree.angle)->accessibleName(), "Snap angle");
    EXPECT_EQ(WidgetOf(tree.direction)->accessibleName(), "Gradient direction");
    EXPECT_EQ(WidgetOf(tree.colours)->accessibleName(), "Colours & lines");
    EXPECT_EQ(WidgetOf(tree.show)->whatsThis(),
              "Draws the grid on the sheet, below everything else. It is never printed.");
    // The letter of a label leads to its field.
    QTest::keyClick(area.get(), Qt::Key_P, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), WidgetOf(tree.horizontal));
    // It greys with its field.
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

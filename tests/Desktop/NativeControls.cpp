#include "NativeColorCombo.h"
#include "NativeFixture.h"
#include "NativeSpinner.h"
#include "TestHand.h"

#include <QClipboard>
#include <QColorDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolTip>

namespace {

class NativeControls : public NativeFixture {
protected:
    NativeSpinner* Spinner(const KivDialog* node) { return static_cast<NativeSpinner*>(WidgetOf(node)); }
    QString Text(const KivDialog* node) { return WidgetOf(node)->findChild<QLineEdit*>()->text(); }
};

TEST_F(NativeControls, ClicksAndKeysChangeTheTreeOnce)
{
    Listener ticked(tree.show, tree.show->GetChkBModifyNotification());
    TestHand::ClickIndicator(WidgetOf(tree.show));
    EXPECT_EQ(tree.show->GetState(), KivDlgChecked);
    QTest::keyClick(WidgetOf(tree.show), Qt::Key_Space);
    EXPECT_EQ(tree.show->GetState(), KivDlgUnchecked);
    EXPECT_EQ(ticked.heard, 2);

    Listener chosen(tree.direction, tree.direction->GetComboSelectNotification());
    QTest::keyClick(WidgetOf(tree.direction), Qt::Key_Down);
    EXPECT_EQ(tree.direction->GetSelect(), 1);
    EXPECT_EQ(chosen.heard, 1);

    Listener typed(tree.file, tree.file->GetEditModifyNotification());
    TestHand::TypeOver(WidgetOf(tree.file), "parts");
    EXPECT_EQ(typed.heard, 0);
    QTest::keyClick(WidgetOf(tree.file), Qt::Key_Return);
    EXPECT_EQ(tree.file->GetText(), "parts");
    EXPECT_EQ(typed.heard, 1);
}

TEST_F(NativeControls, FollowTheTree)
{
    tree.show->SetState(KivDlgChecked, 0);
    EXPECT_TRUE(static_cast<QAbstractButton*>(WidgetOf(tree.show))->isChecked());
    tree.horizontal->SetValue(0.0254, 0);
    tree.horizontal->SetUnit(KivDlgUnitInch);
    EXPECT_EQ(Text(tree.horizontal), "1 in");
    tree.direction->SetLine("Radial");
    tree.direction->SetSelect(3);
    EXPECT_EQ(static_cast<QComboBox*>(WidgetOf(tree.direction))->currentText(), "Radial");
    tree.show->SetTitle("Other");
    EXPECT_EQ(static_cast<QAbstractButton*>(WidgetOf(tree.show))->text(), "Other");
    tree.show->GetParentDialog()->SetVisibility(KivDlgHidden);
    EXPECT_FALSE(WidgetOf(tree.show)->isVisible());
    EXPECT_FALSE(WidgetOf(LockOf(tree.show))->isVisible());
    tree.show->GetParentDialog()->SetVisibility(KivDlgShown);
    EXPECT_TRUE(WidgetOf(tree.show)->isVisible());
}

TEST_F(NativeControls, NeitherLockedNorDependentOnesCanBeChanged)
{
    for (KivDialog* node : Nodes{tree.snap, tree.angle, tree.vertical, tree.lockedColor}) {
        QWidget* widget = WidgetOf(node);
        EXPECT_FALSE(widget->isEnabled());
        TestHand::ClickIndicator(widget);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Up, Qt::Key_Down, Qt::Key_5, Qt::Key_Return})
            QTest::keyClick(widget, key);
        TestHand::Wheel(widget);
        const QString why = QString::fromUtf8(node->WhyDisabled().ConvertToChar());
        ASSERT_FALSE(why.isEmpty());
        EXPECT_EQ(widget->accessibleDescription(), why);
    }
    EXPECT_EQ(tree.snap->GetState(), KivDlgUnchecked);
    EXPECT_DOUBLE_EQ(tree.angle->GetValue(), 0.26179938779914941);
    EXPECT_DOUBLE_EQ(tree.vertical->GetValue(), 0.1);
    unsigned int red = 0, green = 0, blue = 0;
    tree.lockedColor->GetSelectedColor(&red, &green, &blue);
    EXPECT_EQ(blue, 56U);

    // Unlocking is the tree's alone, and reaches what was gray; a locked group grays what is free.
    LockOf(tree.snap)->SetInfo(KivSettingInfo());
    EXPECT_TRUE(WidgetOf(tree.snap)->isEnabled());
    tree.grid->SetSensitivity(KivDlgDisabled);
    EXPECT_FALSE(WidgetOf(tree.show)->isEnabled());
    EXPECT_TRUE(WidgetOf(LockOf(tree.angle))->isEnabled()) << "the padlock has to explain";
    EXPECT_FALSE(WidgetOf(tree.show)->toolTip().isEmpty());
}

TEST_F(NativeControls, TheReasonIsToldWhereThePointerRestsOnAGrayControl)
{
    area->ensureWidgetVisible(WidgetOf(tree.vertical));
    QWidget* line = WidgetOf(tree.vertical)->findChild<QLineEdit*>();
    const QPoint place = line->rect().center();
    QHelpEvent help(QEvent::ToolTip, place, line->mapToGlobal(place));
    QCoreApplication::sendEvent(line, &help);
    EXPECT_TRUE(QToolTip::text().contains("Available when “Allow distortions” is on."));
    QToolTip::hideText();
}

TEST_F(NativeControls, SpinnerTakesWhatTheTreeUnderstands)
{
    Listener entered(tree.horizontal, tree.horizontal->GetSpinnerModifyNotification());
    QWidget* field = WidgetOf(tree.horizontal);
    for (const auto& [text, shown] : {std::pair{"20,5", "20.5 mm"}, {"2'", "609.6 mm"}}) {
        TestHand::TypeOver(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(Text(tree.horizontal), shown);
    }
    EXPECT_DOUBLE_EQ(tree.horizontal->GetValue(), 0.6096);
    EXPECT_EQ(entered.heard, 2);

    // Walking through with Tab changes nothing, although fewer digits are shown than kept.
    tree.horizontal->SetValue(0.02000049, 0);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(tree.horizontal->GetValue(), 0.02000049);
    EXPECT_EQ(entered.heard, 2);

    tree.horizontal->SetValue(0.01, 0);
    QTest::keyClick(field, Qt::Key_Up);
    EXPECT_EQ(entered.heard, 3);
    EXPECT_EQ(Text(tree.horizontal), "15 mm");
    QStyleOptionSpinBox option;
    option.initFrom(field);
    option.subControls = QStyle::SC_All;
    const QRect down =
        field->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, field);
    QTest::mouseClick(field, Qt::LeftButton, {}, down.center());
    EXPECT_EQ(entered.heard, 4);
    EXPECT_EQ(Text(tree.horizontal), "10 mm");
    TestHand::TypeOver(field, "7");
    WidgetOf(tree.show)->setFocus();
    EXPECT_DOUBLE_EQ(tree.horizontal->GetValue(), 0.007) << "leaving the field enters the text";
    tree.horizontal->SetVisibleTextWidth(2);
    const int width = field->sizeHint().width();
    tree.horizontal->SetValue(0.01, 0);
    EXPECT_EQ(field->sizeHint().width(), width) << "it grows with its value";
}

TEST_F(NativeControls, ARefusedTextStaysWithItsReasonUntilItIsLeft)
{
    NativeSpinner* field = Spinner(tree.horizontal);
    TestHand::TypeOver(field, "wide");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(Text(tree.horizontal), "wide");
    EXPECT_EQ(tree.horizontal->GetValue(), 0.1);
    EXPECT_TRUE(field->Refusal().contains("wide"));
    EXPECT_EQ(field->accessibleDescription(), field->Refusal());
    EXPECT_EQ(field->toolTip(), field->Refusal());
    const auto* bubble = static_cast<NativeBubble*>(area->widget()->findChild<QWidget*>("NativeBubble"));
    ASSERT_TRUE(bubble && bubble->isVisible());
    EXPECT_EQ(bubble->Text(), field->Refusal());

    // The tree speaks up meanwhile, of something else: what is typed stays.
    tree.horizontal->SetHelp("Other help");
    EXPECT_EQ(Text(tree.horizontal), "wide");
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(Text(tree.horizontal), "100 mm");
    EXPECT_FALSE(bubble->isVisible());
    EXPECT_TRUE(field->Refusal().isEmpty());

    TestHand::TypeOver(field, "-5");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_FALSE(field->Refusal().isEmpty());
    QTest::keyClicks(field, "0");
    EXPECT_TRUE(field->Refusal().isEmpty()) << "who types on is not blamed";
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(Text(tree.horizontal), "100 mm");
    EXPECT_EQ(tree.horizontal->GetValue(), 0.1);
}

TEST_F(NativeControls, TheWheelScrollsThePageOverFieldsThatNobodyChose)
{
    for (KivDialog* node : Nodes{tree.horizontal, tree.direction, tree.background}) {
        WidgetOf(tree.show)->setFocus();
        area->verticalScrollBar()->setValue(0);
        TestHand::Wheel(WidgetOf(node));
        EXPECT_GT(area->verticalScrollBar()->value(), 0);
        EXPECT_FALSE(WidgetOf(node)->hasFocus());
    }
    EXPECT_EQ(tree.horizontal->GetValue(), 0.1);
    EXPECT_EQ(tree.direction->GetSelect(), 0);
    WidgetOf(tree.direction)->setFocus();
    TestHand::Wheel(WidgetOf(tree.direction));
    EXPECT_EQ(tree.direction->GetSelect(), 1);
}

TEST_F(NativeControls, AnyColorCanBeMixedAndIsSpoken)
{
    auto* combo = static_cast<NativeColorCombo*>(WidgetOf(tree.background));
    EXPECT_EQ(combo->accessibleName(), "Sheet background: White (255, 255, 255)");
    EXPECT_EQ(combo->count(), tree.background->GetLineCount() + 1);
    QColorDialog* mixer = combo->OpenMixer();
    mixer->setCurrentColor(QColor(1, 2, 3));
    mixer->accept();
    EXPECT_EQ(combo->accessibleName(), "Sheet background: Custom (1, 2, 3)");
    EXPECT_EQ(combo->currentText(), "Custom (1, 2, 3)");

    // Arrows that come to the last entry do not open it.
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_End);
    EXPECT_EQ(combo->currentIndex(), tree.background->GetSelect());
    QTest::qWait(0);
    EXPECT_EQ(combo->findChildren<QColorDialog*>().size(), 0);
}

TEST_F(NativeControls, APadlockSaysWhoLockedAndLetsCopyIt)
{
    QWidget* closed = WidgetOf(LockOf(tree.snap));
    EXPECT_EQ(closed->accessibleName(), "Snap to point, locked by the administrator");
    EXPECT_EQ(closed->accessibleDescription().toUtf8(), LockOf(tree.snap)->GetTip().ConvertToChar());
    EXPECT_TRUE(closed->toolTip().contains("Snap to point: Locked"));
    EXPECT_EQ(WidgetOf(LockOf(tree.show))->focusPolicy(), Qt::NoFocus);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        closed->setFocus();
        QTest::keyClick(closed, key);
        QWidget* panel = closed->findChild<QWidget*>("NativePanel");
        ASSERT_TRUE(panel && panel->isVisible());
        QGuiApplication::clipboard()->clear();
        QTest::mouseClick(panel->findChild<QPushButton*>(), Qt::LeftButton);
        EXPECT_EQ(QGuiApplication::clipboard()->text().toUtf8(),
                  LockOf(tree.snap)->GetReport().ConvertToChar());
        EXPECT_FALSE(panel->isVisible());
        QTest::qWait(0);
    }
    LockOf(tree.snap)->SetInfo(KivSettingInfo());
    EXPECT_EQ(closed->focusPolicy(), Qt::NoFocus);
}

} // namespace

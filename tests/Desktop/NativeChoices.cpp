#include "NativeFixture.h"
#include "TestHand.h"

#include <QAbstractButton>
#include <QComboBox>

namespace {

class NativeChoices : public NativeFixture {
protected:
    void TearDown() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
    QAbstractButton* Radio(std::size_t i) { return static_cast<QAbstractButton*>(WidgetOf(tree.choices[i])); }
    // The numbers of the native buttons that look chosen, and of the one that Tab enters.
    std::string Shown()
    {
        std::string shown;
        for (std::size_t i = 0; i < 3; ++i) shown += Radio(i)->isChecked() ? 'x' : '-';
        for (std::size_t i = 0; i < 3; ++i)
            if (Radio(i)->focusPolicy() & Qt::TabFocus) shown += std::to_string(i);
        return shown;
    }
};

TEST_F(NativeChoices, ExcludeEachOtherOnlyAmongTheirOwn)
{
    EXPECT_EQ(Shown(), "---0") << "nothing has to be chosen";
    TestHand::ClickIndicator(Radio(1));
    EXPECT_EQ(Shown(), "-x-1");
    TestHand::ClickIndicator(Radio(1));
    EXPECT_EQ(Shown(), "-x-1") << "a second click takes nothing back";
    EXPECT_EQ(tree.otherChoices[1]->GetState(), KivDlgChecked)
        << "natively a neighbor, but of another choice";
    tree.choices[2]->SetState(KivDlgChecked, 0);
    EXPECT_EQ(Shown(), "--x2");
    tree.choices[2]->SetState(KivDlgUnchecked, 0);
    EXPECT_EQ(Shown(), "---0");
    tree.choices[0]->SetSensitivity(KivDlgDisabled);
    EXPECT_EQ(Shown(), "---1");

    for (KivDlgRadioButton* locked : tree.otherChoices) {
        auto* button = static_cast<QAbstractButton*>(WidgetOf(locked));
        TestHand::ClickIndicator(button);
        EXPECT_EQ(button->accessibleDescription().toStdString(),
                  LockOf(locked->GetParentDialog())->GetReason().View());
    }
    EXPECT_EQ(tree.otherChoices[1]->GetState(), KivDlgChecked);
}

TEST_F(NativeChoices, ArrowsGoRoundAndChooseWhatIsEnabled)
{
    Listener heard(tree.choices[2], tree.choices[2]->GetRadBModifyNotification());
    tree.choices[1]->SetSensitivity(KivDlgDisabled);
    Radio(0)->setFocus();
    struct {
        Qt::Key key;
        Qt::LayoutDirection direction;
        const char* shown;
    } const steps[] = {{Qt::Key_Down, Qt::LeftToRight, "--x2"},  {Qt::Key_Down, Qt::LeftToRight, "x--0"},
                       {Qt::Key_Up, Qt::LeftToRight, "--x2"},    {Qt::Key_Left, Qt::LeftToRight, "x--0"},
                       {Qt::Key_Right, Qt::LeftToRight, "--x2"}, {Qt::Key_Up, Qt::LeftToRight, "x--0"}};
    for (const auto& step : steps) {
        QTest::keyClick(QApplication::focusWidget(), step.key);
        EXPECT_EQ(Shown(), step.shown);
        EXPECT_TRUE(static_cast<QAbstractButton*>(QApplication::focusWidget())->isChecked());
    }
    EXPECT_EQ(heard.heard, 3);

    tree.choices[1]->SetSensitivity(KivDlgEnabled);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(Radio(0), Qt::Key_Left);
    EXPECT_EQ(Shown(), "-x-1");
    QTest::keyClick(Radio(1), Qt::Key_Right);
    EXPECT_EQ(Shown(), "x--0");

    // The one button left has nowhere to go.
    for (const std::size_t i : {1U, 2U}) tree.choices[i]->SetSensitivity(KivDlgDisabled);
    QTest::keyClick(Radio(0), Qt::Key_Down);
    EXPECT_EQ(Shown(), "x--0");
}

TEST_F(NativeChoices, APushButtonIsPressedByClickSpaceAndEnter)
{
    Listener pressed(tree.settings, tree.settings->GetPushBActivateNotification());
    QWidget* button = WidgetOf(tree.settings);
    area->ensureWidgetVisible(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(pressed.heard, 3);
    tree.settings->SetSensitivity(KivDlgDisabled);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(pressed.heard, 3);
    EXPECT_FALSE(button->toolTip().isEmpty());
}

TEST_F(NativeChoices, EveryPointSymbolHasADrawingOfItsOwnAndAName)
{
    auto* combo = static_cast<QComboBox*>(WidgetOf(tree.symbol));
    ASSERT_EQ(combo->count(), static_cast<int>(KivComboSymbol::kSymbols));
    EXPECT_EQ(combo->accessibleName(), "Point symbol");
    QList<QImage> seen;
    for (int i = 0; i < combo->count(); ++i) {
        const QImage drawing = combo->itemIcon(i).pixmap(QSize(32, 32)).toImage();
        EXPECT_FALSE(seen.contains(drawing)) << i;
        EXPECT_FALSE(combo->itemText(i).isEmpty());
        seen << drawing;
    }
    tree.symbol->SetVisibleTextWidth(5);
    EXPECT_GT(combo->sizeHint().width(), combo->fontMetrics().horizontalAdvance("Concentric circles"));
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(tree.symbol->GetSelect(), 2U);
}

} // namespace

#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgLabel.h"
#include "Native/NativeColorCombo.h"
#include "OptionsFixture.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QColorDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolTip>

namespace {

class NativeControls : public OptionsFixture {
protected:
    void TearDown() override
    {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        OptionsFixture::TearDown();
    }
    static QString Text(QWidget* field) { return field->findChild<QLineEdit*>()->text(); }
    // Of the native buttons of a choice those that look chosen, and the numbers of those that Tab enters.
    std::string Chosen()
    {
        std::string chosen, entered;
        for (std::size_t i = 0; i < 3; ++i) {
            chosen += Button(i)->isChecked() ? 'x' : '-';
            if (Button(i)->focusPolicy() & Qt::TabFocus) entered += std::to_string(i);
        }
        return chosen + entered;
    }
    QAbstractButton* Button(std::size_t i) { return WidgetOf<QAbstractButton>(kChoice[i]); }

    static constexpr const char* kChoice[] = {"radioDragStandard", "radioDragMinimum", "radioDragRelaxation"};
};

TEST_F(NativeControls, ClicksAndKeysChangeTheTreeOnceAndItsChangesAreShown)
{
    KivDlgCheckButton& grid = Check("checkGrid");
    auto* const button = WidgetOf<QAbstractButton>("checkGrid");
    Listener ticked(grid, grid.GetChkBModifyNotification());
    TestHand::ClickIndicator(button);
    EXPECT_EQ(Stored("Drw_settings_GridDisplay", 9), 0);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(Stored("Drw_settings_GridDisplay", 9), 1);
    EXPECT_EQ(ticked.heard, 2);
    grid.SetState(KivDlgUnchecked, 0);
    EXPECT_FALSE(button->isChecked());
    grid.GetParentDialog()->SetVisibility(KivDlgHidden);
    EXPECT_FALSE(button->isVisible() || WidgetOf(Lock("checkGrid"))->isVisible());
    grid.GetParentDialog()->SetVisibility(KivDlgShown);
    EXPECT_TRUE(button->isVisible());
    Spinner("editorGridSpacing").SetUnit(KivDlgUnitInch);
    Spinner("editorGridSpacing").SetValue(0.0254, 0);
    EXPECT_EQ(Text(WidgetOf("editorGridSpacing")), "1 in");

    OpenAt("View");
    Listener chosen(Combo("combViewMod"), Combo("combViewMod").GetComboSelectNotification());
    QTest::keyClick(WidgetOf("combViewMod"), Qt::Key_Down);
    EXPECT_EQ(Stored("DrwGenerationModeVal", 9), 1);
    EXPECT_EQ(chosen.heard, 1);
    auto* const push = WidgetOf("linetypePushButton");
    const auto open = [this] { return window->findChildren<QDialog*>().size(); };
    View().ensureWidgetVisible(push);
    QTest::mouseClick(push, Qt::LeftButton);
    QTest::keyClick(push, Qt::Key_Space);
    QTest::keyClick(push, Qt::Key_Return);
    EXPECT_EQ(open(), 3);
    Control("linetypePushButton").SetSensitivity(KivDlgDisabled);
    QTest::mouseClick(push, Qt::LeftButton);
    QTest::keyClick(push, Qt::Key_Return);
    EXPECT_EQ(open(), 3);
    EXPECT_FALSE(push->toolTip().isEmpty());
}

TEST_F(NativeControls, NeitherLockedNorDependentOnesCanBeChanged)
{
    const Values before = All();
    for (const char* row : {"checkSnap", "editorGridSpacingV", "comboBackgroundColorDD"}) {
        QWidget* const widget = WidgetOf(row);
        EXPECT_FALSE(widget->isEnabled());
        TestHand::ClickIndicator(widget);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Up, Qt::Key_Down, Qt::Key_5})
            QTest::keyClick(widget, key);
        TestHand::Wheel(widget);
        const QString why = QString::fromUtf8(Control(row).WhyDisabled().ConvertToChar());
        ASSERT_FALSE(why.isEmpty());
        EXPECT_EQ(widget->accessibleDescription(), why);
        // The reason is told where the pointer rests.
        auto* const line = widget->findChild<QLineEdit*>();
        QWidget* const under = line ? line : widget;
        QToolTip::hideText();
        QHelpEvent help(QEvent::ToolTip, under->rect().center(), under->mapToGlobal(under->rect().center()));
        QCoreApplication::sendEvent(under, &help);
        EXPECT_TRUE(QToolTip::text().contains(why.toHtmlEscaped())) << QToolTip::text().toStdString();
    }
    EXPECT_EQ(All(), before);

    // Unlocking is the tree's alone, and reaches what was gray; a locked group grays what is free.
    Lock("checkSnap").SetInfo(KivSettingInfo());
    EXPECT_TRUE(WidgetOf("checkSnap")->isEnabled());
    Node<KivDialog>("frameGrid").SetSensitivity(KivDlgDisabled);
    Node<KivDialog>("frameColor").SetSensitivity(KivDlgDisabled);
    EXPECT_FALSE(WidgetOf("checkGrid")->isEnabled());
    EXPECT_FALSE(WidgetOf("checkGrid")->toolTip().isEmpty());
    EXPECT_TRUE(WidgetOf(Lock("comboBackgroundColorDD"))->isEnabled()) << "the padlock has to explain";
}

TEST_F(NativeControls, TheWheelScrollsThePageOverFieldsThatNobodyChose)
{
    window->resize(window->width(), 250);
    const Values before = All();
    for (const char* row : {"editorGridSpacing", "comboBackgroundColor"}) {
        WidgetOf("checkGrid")->setFocus();
        View().verticalScrollBar()->setValue(0);
        TestHand::Wheel(WidgetOf(row));
        EXPECT_GT(View().verticalScrollBar()->value(), 0);
        EXPECT_FALSE(WidgetOf(row)->hasFocus());
    }
    EXPECT_EQ(All(), before);
    WidgetOf("editorGridSpacing")->setFocus();
    TestHand::Wheel(WidgetOf("editorGridSpacing"));
    EXPECT_EQ(Stored("Drw_settings_GridPrimarySpacing", 0.0), 95.0);
}

TEST_F(NativeControls, AnyColorCanBeMixedAndIsSpoken)
{
    OpenAt("Geometry");
    auto* const combo = WidgetOf<NativeColorCombo>("comboCstColor");
    const KivComboColor& color = Color("comboCstColor");
    EXPECT_EQ(combo->count(), color.GetLineCount() + 1);
    QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(combo->view(), Qt::Key_End);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    auto* const mixer = combo->findChild<QColorDialog*>();
    ASSERT_TRUE(mixer);
    EXPECT_FALSE(mixer->isVisible()) << "the popup has the keyboard until its event is over";
    ASSERT_TRUE(QTest::qWaitFor([mixer] { return mixer->isVisible(); }));
    mixer->setCurrentColor(QColor(1, 2, 3));
    mixer->accept();
    EXPECT_EQ(combo->SpokenValue(), "Custom (1, 2, 3)");
    EXPECT_EQ(combo->currentText(), "Custom (1, 2, 3)");

    // Arrows that come to the last entry do not open it.
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_End);
    EXPECT_EQ(combo->currentIndex(), color.GetSelect());
    QTest::qWait(0);
    EXPECT_EQ(combo->findChildren<QColorDialog*>().size(), 0);
}

TEST_F(NativeControls, APadlockSaysWhoLockedAndLetsCopyIt)
{
    QWidget* const closed = WidgetOf(Lock("checkSnap"));
    EXPECT_EQ(closed->accessibleName(), "Snap to point, locked by the administrator");
    EXPECT_EQ(closed->accessibleDescription().toUtf8(), Lock("checkSnap").GetTip().ConvertToChar());
    EXPECT_TRUE(closed->toolTip().contains("Snap to point: Locked"));
    EXPECT_EQ(WidgetOf(Lock("checkGrid"))->focusPolicy(), Qt::NoFocus);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        closed->setFocus();
        QTest::keyClick(closed, key);
        QWidget* panel = closed->findChild<QWidget*>("NativePanel");
        ASSERT_TRUE(panel && panel->isVisible());
        QGuiApplication::clipboard()->clear();
        const bool wantsCommand = key == Qt::Key_Space;
        const QList<QPushButton*> buttons = panel->findChildren<QPushButton*>();
        QTest::mouseClick(wantsCommand ? buttons.first() : buttons.last(), Qt::LeftButton);
        EXPECT_EQ(
            QGuiApplication::clipboard()->text().toUtf8(),
            (wantsCommand ? Lock("checkSnap").GetCommand() : Lock("checkSnap").GetReport()).ConvertToChar());
        EXPECT_FALSE(panel->isVisible());
        QTest::qWait(0);
    }
    Lock("checkSnap").SetInfo(KivSettingInfo());
    EXPECT_EQ(closed->focusPolicy(), Qt::NoFocus);
}

TEST_F(NativeControls, OneOfAChoiceIsChosenByClickAndArrows)
{
    box.Write(file, "int Drw_settings_DragModeR14 = 7\n");
    OpenAt("Geometry");
    EXPECT_EQ(Chosen(), "---0") << "nothing has to be chosen";
    TestHand::ClickIndicator(Button(1));
    EXPECT_EQ(Chosen(), "-x-1");
    EXPECT_EQ(Stored("Drw_settings_DragModeR14", 9), 1);
    TestHand::ClickIndicator(Button(1));
    EXPECT_EQ(Chosen(), "-x-1") << "a second click takes nothing back";
    Radio(kChoice[1]).SetState(KivDlgUnchecked, 0);
    Radio(kChoice[0]).SetSensitivity(KivDlgDisabled);
    EXPECT_EQ(Chosen(), "---1");
    Radio(kChoice[0]).SetSensitivity(KivDlgEnabled);
    Radio(kChoice[0]).SetState(KivDlgChecked, 0);

    Listener heard(Radio(kChoice[2]), Radio(kChoice[2]).GetRadBModifyNotification());
    Radio(kChoice[1]).SetSensitivity(KivDlgDisabled);
    Button(0)->setFocus();
    for (const Qt::Key key :
         {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up}) {
        const bool wasFirst = Button(0)->isChecked();
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(Chosen(), wasFirst ? "--x2" : "x--0") << "they go round, past what is gray";
        EXPECT_TRUE(static_cast<QAbstractButton*>(QApplication::focusWidget())->isChecked());
    }
    EXPECT_EQ(heard.heard, 3);
    Radio(kChoice[1]).SetSensitivity(KivDlgEnabled);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(Button(0), Qt::Key_Left);
    EXPECT_EQ(Chosen(), "-x-1");
    QTest::keyClick(Button(1), Qt::Key_Right);
    EXPECT_EQ(Chosen(), "x--0");
    // The one button left has nowhere to go.
    for (const std::size_t i : {1U, 2U}) Radio(kChoice[i]).SetSensitivity(KivDlgDisabled);
    QTest::keyClick(Button(0), Qt::Key_Down);
    EXPECT_EQ(Chosen(), "x--0");
}

TEST_F(NativeControls, EveryPointSymbolHasADrawingOfItsOwnAndAName)
{
    box.Write(file, "int DrwProject3DPts = 1\nint DrwProject3DSymbol = 1\n");
    OpenAt("View");
    QTest::keyClick(WidgetOf("project3DPtsPushButton"), Qt::Key_Space);
    auto* const combo = WidgetOf<QComboBox>("comboSymbol");
    EXPECT_GT(combo->count(), 8);
    QList<QImage> seen;
    for (int i = 0; i < combo->count(); ++i) {
        const QImage drawing = combo->itemIcon(i).pixmap(QSize(32, 32)).toImage();
        EXPECT_FALSE(seen.contains(drawing)) << i;
        EXPECT_FALSE(combo->itemText(i).isEmpty());
        seen << drawing;
    }
    Node<KivComboSymbol>("comboSymbol").SetVisibleTextWidth(5);
    EXPECT_GT(combo->sizeHint().width(), combo->fontMetrics().horizontalAdvance("Concentric circles"));
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(Node<KivDlgCombo>("comboSymbol").KivDlgCombo::GetSelect(), 1);
}

// Destroys the sender of a notification, as a page does that rebuilds itself.
class Destroyer : public KivCommand {
public:
    explicit Destroyer(KivDialog* who) : KivCommand(nullptr, "destroyer"), victim(who) {}
    void Hear(KivCommand*, KivNotification*, void*) { victim->RequestDelayedDestruction(); }
    KivWeakPtr<KivDialog> victim;
};

TEST_F(NativeControls, NodesAndWidgetsMayGoInAnyOrder)
{
    delete WidgetOf("checkRuler");
    EXPECT_FALSE(Check("checkRuler").GetView());
    Check("checkRuler").SetState(KivDlgChecked, 1);

    Destroyer destroyer(Check("checkAllowDistortions").GetParentDialog());
    destroyer.AddAnalyseNotificationCB(&Check("checkAllowDistortions"),
                                       Check("checkAllowDistortions").GetChkBModifyNotification(),
                                       &Destroyer::Hear, nullptr);
    const QPointer<QWidget> button = WidgetOf("checkAllowDistortions");
    QTest::keyClick(button, Qt::Key_Space);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(Stored("Drw_settings_AllowDistortions", 9), 1) << "a condemned control takes no more actions";
    KivCommand::DrainDelayedDestruction();
    Settle();
    EXPECT_FALSE(button || destroyer.victim);

    const QPointer<QWidget> spinner = WidgetOf("editorGridSpacing");
    const QPointer<QWidget> group = WidgetOf(Node<KivDialog>("frameColor"));
    QWidget* const label = WidgetOf(*Control("editorGridSpacing").GetLabel());
    spinner->setFocus();
    QTest::keyClicks(spinner, "7");
    delete &Control("editorGridSpacing");
    ASSERT_TRUE(spinner);
    EXPECT_FALSE(spinner->isVisible());
    QTest::keyClick(spinner, Qt::Key_Up);
    EXPECT_TRUE(label->isEnabled());
    delete &Node<KivDialog>("frameColor");
    Settle();
    EXPECT_FALSE(spinner || group);
    OptionsPageView& view = View();
    delete window->Session()->FindPage("General")->frame.Get();
    Settle();
    EXPECT_FALSE(view.widget());
}

} // namespace

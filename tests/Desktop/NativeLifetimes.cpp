#include "NativeFixture.h"

#include <QAbstractButton>
#include <QPointer>

namespace {

using NativeLifetimes = NativeFixture;

// Destroys the sender of a notification, as a page does that rebuilds itself.
class Destroyer : public KivCommand {
public:
    explicit Destroyer(KivDialog* who) : KivCommand(nullptr, "destroyer"), victim(who) {}
    void Hear(KivCommand*, KivNotification*, void*) { victim->RequestDelayedDestruction(); }
    KivWeakPtr<KivDialog> victim;
};

TEST_F(NativeLifetimes, ANodeMayGoFirst)
{
    const QPointer<QWidget> spinner = WidgetOf(tree.horizontal), group = WidgetOf(tree.colors);
    QWidget* const label = WidgetOf(tree.horizontal->GetLabel());
    spinner->setFocus();
    QTest::keyClicks(spinner, "7");
    delete tree.horizontal;
    ASSERT_TRUE(spinner);
    EXPECT_FALSE(spinner->isVisible());
    QTest::keyClick(spinner, Qt::Key_Return);
    EXPECT_TRUE(label->isEnabled());
    delete tree.colors;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(spinner);
    EXPECT_FALSE(group);
    page.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(area->widget());
}

TEST_F(NativeLifetimes, AWidgetOrTheWindowMayGoFirst)
{
    delete WidgetOf(tree.show);
    EXPECT_FALSE(tree.show->GetView());
    tree.show->SetState(KivDlgChecked, 1);
    area.reset();
    for (const KivDialog* node : Nodes{tree.grid, tree.angle, tree.grid->Children().front(), page.get()})
        EXPECT_FALSE(node->GetView());
    tree.grid->SetSensitivity(KivDlgDisabled);
    tree.type->SetSelect(3U);
    // The page is shown again by another window, as it is by now.
    area = ShowInArea(*page, QSize(700, 250));
    EXPECT_TRUE(static_cast<QAbstractButton*>(WidgetOf(tree.show))->isChecked());
    EXPECT_FALSE(WidgetOf(tree.show)->isEnabled());
    tree.show->SetState(KivDlgUnchecked, 0);
    EXPECT_FALSE(static_cast<QAbstractButton*>(WidgetOf(tree.show))->isChecked());
}

TEST_F(NativeLifetimes, ANodeMayGoWhileItsOwnEventIsUnderWay)
{
    Destroyer destroyer(tree.distort->GetParentDialog());
    destroyer.AddAnalyseNotificationCB(tree.distort, tree.distort->GetChkBModifyNotification(),
                                       &Destroyer::Hear, nullptr);
    QPointer<QWidget> button = WidgetOf(tree.distort);
    QTest::keyClick(button, Qt::Key_Space);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(tree.distort->GetState(), KivDlgChecked) << "a condemned control takes no more actions";
    KivCommand::DrainDelayedDestruction();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(button);
    EXPECT_FALSE(destroyer.victim);
}

} // namespace

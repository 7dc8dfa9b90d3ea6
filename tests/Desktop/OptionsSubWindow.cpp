#include "Dialog/KivUserHand.h"
#include "NativeDialog.h"
#include "OptionsFixture.h"
#include "TestWindow.h"

#include <QTemporaryDir>

namespace {

// A window that the test page's push button has opened, driven natively.
class OptionsSubWindow : public OptionsFixture {
public:
    // Makes a window at each press, as pages do.
    struct Opener : KivCommand {
        explicit Opener(KivDialog* from) : KivCommand(nullptr, "opener"), parent(from->GetParentDialog())
        {
            auto* button = static_cast<KivDlgPushButton*>(from);
            AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), &Opener::Open, nullptr);
        }
        void Open(KivCommand*, KivNotification*, void*) { made.emplace_back(new TestWindow(parent)); }
        KivDialog* parent;
        std::vector<KivWeakPtr<TestWindow>> made;
    };

    void SetUp() override
    {
        TestWindow::closed.clear();
        TestWindow::stored = 0.0;
        OptionsFixture::SetUp();
        Watch();
    }
    void TearDown() override
    {
        opener.reset();
        OptionsFixture::TearDown();
    }
    void OpenOptions(const OptionsMemory& memory = OptionsMemory(QString()))
    {
        Open(memory);
        Watch();
    }
    // Lets the page's button make windows, and presses it.
    void Watch()
    {
        opener = std::make_unique<Opener>(OptionsFixture::Node("pushSettings_dialog"));
        Press();
    }
    void Press()
    {
        QTest::keyClick(WidgetOf("pushSettings_dialog"), Qt::Key_Space);
        native = opener->made.empty() ? nullptr : Native(opener->made.back().Get());
        ASSERT_TRUE(native);
        Activate(native);
    }
    static NativeDialog* Native(const TestWindow* node)
    {
        return static_cast<NativeDialog*>(NativePiece::Of(node)->Widget());
    }
    TestWindow* Node() { return opener->made.back().Get(); }
    NativeSpinner* Spinner()
    {
        return static_cast<NativeSpinner*>(NativePiece::Of(Node()->spinner)->Widget());
    }
    void TypeOver(const char* text) { TestHand::TypeOver(Spinner(), text); }
    QPushButton* CloseButton() { return native->findChild<QPushButton*>(); }

    std::unique_ptr<Opener> opener;
    QPointer<NativeDialog> native;
};

TEST_F(OptionsSubWindow, ShowsItsNodeBesideThePage)
{
    EXPECT_EQ(native->windowTitle(), "Points & more") << "a title that is set late counts";
    EXPECT_EQ(native->parentWidget(), window.get());
    EXPECT_FALSE(native->isModal());
    EXPECT_FALSE(CloseButton()->isDefault() || CloseButton()->autoDefault());
    EXPECT_EQ(QApplication::focusWidget(), Spinner());
    QTest::keyClick(Spinner(), Qt::Key_F1);
    EXPECT_TRUE(Spinner()->findChild<QWidget*>("NativePanel"));
    Node()->SetVisibility(KivDlgHidden);
    EXPECT_FALSE(native->isVisible());
    Node()->SetVisibility(KivDlgShown);
    EXPECT_TRUE(native->isVisible());

    const QPointer<NativeDialog> first = native;
    Press();
    EXPECT_NE(first, native);
    EXPECT_NE(first->pos(), native->pos()) << "one would hide the other";
    EXPECT_TRUE(first->isVisible());
    KivUserHand::Close(*Node());
    QTest::qWait(1);
    EXPECT_FALSE(native);
    EXPECT_TRUE(first->isVisible());
}

TEST_F(OptionsSubWindow, EveryWayOfClosingOnlyAsks)
{
    struct {
        void (*close)(OptionsSubWindow&);
        const char* heard;
    } const ways[] = {
        {[](OptionsSubWindow& t) { t.native->close(); }, "W"},
        {[](OptionsSubWindow& t) { QTest::keyClick(t.native, Qt::Key_Escape); }, "W"},
        {[](OptionsSubWindow& t) { QTest::mouseClick(t.CloseButton(), Qt::LeftButton); }, "B"},
    };
    for (const auto& [close, heard] : ways) {
        if (!native) Press();
        Node()->isStubborn = true;
        close(*this);
        QTest::qWait(1);
        ASSERT_TRUE(native && native->isVisible());

        TestWindow::closed.clear();
        TypeOver("wide");
        close(*this);
        EXPECT_TRUE(native->isVisible());
        EXPECT_FALSE(Spinner()->Refusal().isEmpty());
        EXPECT_EQ(TestWindow::closed, "") << "the refused text would be lost";
        Node()->isStubborn = false;
        TypeOver("20");
        QTest::keyClick(Spinner(), Qt::Key_Return);
        EXPECT_EQ(Node()->spinner->GetValue(), 0.02);
        EXPECT_TRUE(native->isVisible() && window->isVisible()) << "Enter closes nothing";
        TypeOver("7");
        const QPointer<NativeDialog> gone = native;
        close(*this);
        QTest::qWait(1);
        EXPECT_FALSE(gone);
        EXPECT_EQ(TestWindow::closed, heard);
        EXPECT_EQ(TestWindow::stored, 0.007) << "what was typed is entered";
        TestWindow::stored = 0.0;
    }
    Press();
    CloseButton()->setFocus();
    QTest::keyClick(CloseButton(), Qt::Key_Return);
    EXPECT_EQ(TestWindow::closed, "BB") << "where the button has the focus Enter presses it";
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(TestEditor::log.empty());
}

TEST_F(OptionsSubWindow, TheEndOfTheOptionsEndsItToo)
{
    TypeOver("wide");
    window->accept();
    ASSERT_TRUE(window->isVisible()) << "OK would have thrown the text away";
    EXPECT_TRUE(native->isVisible());
    EXPECT_FALSE(Spinner()->Refusal().isEmpty());
    TypeOver("9");
    window->accept();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(TestWindow::stored, 0.009) << "what was typed is entered before the pages commit";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(native);
    EXPECT_EQ(TestWindow::closed, "W");

    for (const bool cancel : {true, false}) {
        OpenOptions();
        TypeOver("wide");
        if (cancel)
            window->reject();
        else
            window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(native);
    }
    EXPECT_EQ(TestWindow::closed, "WWW");
}

TEST_F(OptionsSubWindow, AnythingMayGoFirst)
{
    const auto gone = [&] {
        QTest::qWait(1);
        return !native;
    };
    Node()->isStubborn = true;
    delete native.data();
    EXPECT_FALSE(Node()->GetView());
    Node()->SetVisibility(KivDlgHidden);
    Node()->SetVisibility(KivDlgShown);
    ASSERT_TRUE(NativePiece::Of(Node())) << "it is shown anew";
    native = Native(Node());
    delete Node();
    EXPECT_TRUE(native && !native->isVisible());
    EXPECT_TRUE(gone());

    Press();
    TypeOver("7");
    delete Frame()->FindDialog("framePoints");
    EXPECT_TRUE(gone());

    opener = nullptr;
    OpenOptions();
    Node()->isStubborn = true;
    delete Frame();
    EXPECT_TRUE(gone());
}

TEST_F(OptionsSubWindow, AWindowHasNoCellInThePage)
{
    const QSize hint = window->sizeHint();
    Node()->SetGridConstraints(9, 9, 1, 1, KivDlgAttachAllSides);
    KivDialog* cell = OptionsFixture::Node("pushSettings_dialog");
    EXPECT_EQ(Node()->GetParentDialog(), cell->GetParentDialog());
    EXPECT_EQ(window->sizeHint(), hint);
    // Also where it stood before the page was built.
    KivDialog* other = Frame("OtherTestEditor");
    auto* early = new TestWindow(other->FindDialog("pushSettings"));
    early->SetGridConstraints(9, 9, 1, 1, KivDlgAttachAllSides);
    ASSERT_TRUE(window->ShowPage("OtherTestEditor"));
    EXPECT_EQ(window->sizeHint(), hint);
    EXPECT_EQ(Native(early)->windowTitle(), "Points & more");
}

TEST_F(OptionsSubWindow, ItsPlaceIsRemembered)
{
    const QTemporaryDir directory;
    const OptionsMemory memory(directory.filePath("desktop.ini"));
    OpenOptions(memory);
    const QRect chosen(40, 60, native->width() + 30, native->height() + 20);
    native->setGeometry(chosen);
    KivUserHand::Close(*Node());
    QTest::qWait(1);
    Press();
    EXPECT_EQ(native->geometry(), chosen);
    window->accept();
    OpenOptions(memory);
    EXPECT_EQ(native->geometry(), chosen);
    window->reject();
    memory.RememberWindow("TestWindow.PointWindow", QRect(90000, 90000, 5000, 5000));
    OpenOptions(memory);
    EXPECT_TRUE(native->screen()->availableGeometry().contains(native->geometry()));
}

} // namespace

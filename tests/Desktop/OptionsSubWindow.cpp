#include "Native/NativeDialog.h"
#include "OptionsFixture.h"

#include <QTemporaryDir>

namespace {

// A window that a page's push button has opened, driven natively: the level of detail of HRV views.
class OptionsSubWindow : public OptionsFixture {
protected:
    void Open() override { OpenRemembering(OptionsMemory(QString())); }
    void OpenRemembering(const OptionsMemory& memory)
    {
        box.Write(file, "int DrwGenerationModeVal = 3\n");
        OpenAt("View", memory);
        Press();
    }
    void Press()
    {
        QTest::keyClick(WidgetOf("pushRasterOptions"), Qt::Key_Space);
        native = window->findChildren<NativeDialog*>().back();
        QTest::qWait(1); // the options are active before it
        Activate(native);
    }
    KivDlgDialog& Window() { return *static_cast<KivDlgDialog*>(native->Node()); }
    NativeSpinner* Level() { return native->findChild<NativeSpinner*>(); }
    QPushButton* CloseButton() { return native->findChild<QPushButton*>(); }
    static int StoredLevel() { return Stored("KivDrwHRVLOD", 4); }

    QPointer<NativeDialog> native;
};

TEST_F(OptionsSubWindow, ShowsItsNodeBesideThePage)
{
    const QSize hint = window->sizeHint();
    EXPECT_EQ(native->windowTitle().toStdString(), Window().GetTitle().View());
    EXPECT_EQ(native->parentWidget(), window.get());
    EXPECT_FALSE(native->isModal());
    EXPECT_FALSE(CloseButton()->isDefault() || CloseButton()->autoDefault());
    EXPECT_EQ(QApplication::focusWidget(), Level());
    std::vector<QWidget*> ring;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ring.push_back(QApplication::focusWidget());
    }
    EXPECT_EQ(ring[2], Level()) << "graph, Close, and round again";
    EXPECT_EQ(ring[3], ring[0]);
    Level()->setFocus();
    QTest::keyClick(Level(), Qt::Key_F1);
    EXPECT_TRUE(Level()->findChild<QWidget*>("NativePanel"));
    Window().SetVisibility(KivDlgHidden);
    EXPECT_FALSE(native->isVisible());
    Window().SetVisibility(KivDlgShown);
    EXPECT_TRUE(native->isVisible());

    const QPointer<NativeDialog> first = native;
    Press();
    EXPECT_EQ(window->sizeHint(), hint) << "a window has no cell in the page";
    EXPECT_NE(first, native);
    EXPECT_NE(first->pos(), native->pos()) << "one would hide the other";
    EXPECT_TRUE(first->isVisible());
    KivUserHand::Close(Window());
    Settle();
    EXPECT_FALSE(native);
    EXPECT_TRUE(first->isVisible());
}

TEST_F(OptionsSubWindow, EveryWayOfClosingStoresWhatIsTypedAndNoneLosesARefusedText)
{
    const std::function<void()> ways[] = {
        [this] { native->close(); },
        [this] { QTest::keyClick(native, Qt::Key_Escape); },
        [this] { QTest::mouseClick(CloseButton(), Qt::LeftButton); },
    };
    int level = 4;
    for (const auto& close : ways) {
        TestHand::TypeOver(Level(), "wide");
        close();
        Settle();
        ASSERT_TRUE(native && native->isVisible()) << "the refused text would be lost";
        EXPECT_FALSE(Level()->Refusal().isEmpty());
        TestHand::TypeOver(Level(), "15");
        QTest::keyClick(Level(), Qt::Key_Return);
        EXPECT_TRUE(native->isVisible() && window->isVisible()) << "Enter closes nothing";
        EXPECT_EQ(StoredLevel(), level);
        TestHand::TypeOver(Level(), std::to_string(++level).c_str());
        close();
        Settle();
        EXPECT_FALSE(native);
        EXPECT_EQ(StoredLevel(), level) << "what was typed is entered";
        EXPECT_TRUE(window->isVisible());
        Press();
    }
    CloseButton()->setFocus();
    QTest::keyClick(CloseButton(), Qt::Key_Return);
    Settle();
    EXPECT_FALSE(native) << "where the button has the focus Enter presses it";
    window->reject();
    EXPECT_EQ(StoredLevel(), 4) << "Cancel takes back what every way of closing keeps";
}

TEST_F(OptionsSubWindow, TheEndOfTheOptionsEndsItToo)
{
    TestHand::TypeOver(Level(), "wide");
    window->accept();
    ASSERT_TRUE(window->isVisible()) << "OK would have thrown the text away";
    EXPECT_TRUE(native->isVisible());
    EXPECT_FALSE(Level()->Refusal().isEmpty());
    TestHand::TypeOver(Level(), "9");
    window->accept();
    EXPECT_FALSE(window->isVisible());
    EXPECT_NE(box.Bytes(file).find("int KivDrwHRVLOD = 9\n"), std::string::npos)
        << "what was typed is entered before the pages commit";
    Settle();
    EXPECT_FALSE(native);
    for (const bool cancel : {true, false}) {
        Open();
        TestHand::TypeOver(Level(), "wide");
        if (cancel)
            window->reject();
        else
            window.reset();
        Settle();
        EXPECT_FALSE(native);
    }
}

TEST_F(OptionsSubWindow, AnythingMayGoFirst)
{
    KivDlgDialog& node = Window();
    delete native.data();
    EXPECT_FALSE(node.GetView());
    node.SetVisibility(KivDlgHidden);
    node.SetVisibility(KivDlgShown);
    ASSERT_TRUE(NativePiece::Of(&node)) << "it is shown anew";
    native = static_cast<NativeDialog*>(NativePiece::Of(&node)->Widget());
    delete &node;
    EXPECT_TRUE(native && !native->isVisible());
    Settle();
    EXPECT_FALSE(native);

    Press();
    TestHand::TypeOver(Level(), "7");
    delete window->Session()->FindPage("View")->frame.Get();
    Settle();
    EXPECT_FALSE(native);
}

TEST_F(OptionsSubWindow, ItsPlaceIsRemembered)
{
    const QTemporaryDir directory;
    const OptionsMemory memory(directory.filePath("desktop.ini"));
    OpenRemembering(memory);
    const QRect chosen(40, 60, native->width() + 30, native->height() + 20);
    const auto closeAt = [&](const QRect& geometry) {
        native->setGeometry(geometry);
        KivUserHand::Close(Window());
        Settle();
    };
    closeAt(chosen);
    Press();
    EXPECT_EQ(native->geometry(), chosen);
    window->accept();
    OpenRemembering(memory);
    EXPECT_EQ(native->geometry(), chosen);
    closeAt(QRect(90000, 90000, 5000, 5000));
    Press();
    EXPECT_TRUE(native->screen()->availableGeometry().contains(native->geometry()));
}

} // namespace

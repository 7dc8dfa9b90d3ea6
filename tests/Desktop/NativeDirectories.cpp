#include "Native/NativeDirectoryRow.h"
#include "Native/NativeEditor.h"
#include "OptionsFixture.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>

namespace {

class NativeDirectories : public OptionsFixture {
protected:
    void Open() override
    {
        OpenAt("Layout");
        node = &Node<KivDlgEditor>("editorTitleBlockPath_dialog");
        field = WidgetOf<NativeEditor>(*node);
    }
    QString Path(const char* below) const { return root.path() + below; }
    void Show(const QString& path) { node->SetText(path.toUtf8().constData(), 0); }
    bool IsMarked() const { return field->accessibleDescription().contains("no such directory"); }
    NativeDirectoryButton* Button() const { return window->findChild<NativeDirectoryButton*>(); }

    QTemporaryDir root;
    KivDlgEditor* node = nullptr;
    NativeEditor* field = nullptr;
};

TEST_F(NativeDirectories, AMissingOneIsKeptAndMarkedAndFollowsTheDisk)
{
    QFile plain(Path("/file"));
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    for (const auto& [path, missing] : {std::pair(root.path(), false),
                                        {QString(), false},
                                        {Path("/no"), true},
                                        {Path("/file"), true},
                                        {Path("/file/x"), true},
                                        {"/\n\x01", true},
                                        {QString(5000, 'x'), true},
                                        {".", false}}) {
        field->setFocus();
        field->selectAll();
        field->insert(path);
        field->setModified(true);
        QTest::keyClick(field, Qt::Key_Tab);
        EXPECT_EQ(QString::fromUtf8(node->GetText().ConvertToChar()), field->text()) << "never refused";
        EXPECT_EQ(IsMarked(), missing) << path.toStdString();
    }

    const int wide = field->sizeHint().width();
    node->SetVisibleTextWidth(100);
    EXPECT_GT(field->sizeHint().width(), wide) << "as wide as its page asks";
    Show(Path("/later"));
    EXPECT_EQ(field->accessibleDescription(), "There is no such directory: " + Path("/later"));
    EXPECT_TRUE(field->toolTip().contains(Path("/later")));
    QDir().mkdir(Path("/later"));
    QEvent activated(QEvent::WindowActivate);
    QApplication::sendEvent(window.get(), &activated);
    EXPECT_FALSE(IsMarked());
    QDir().rmdir(Path("/later"));
    QApplication::sendEvent(window.get(), &activated);
    EXPECT_TRUE(IsMarked());
    node->SetSensitivity(KivDlgDisabled);
    EXPECT_FALSE(IsMarked()) << "why it is gray comes first";
    EXPECT_FALSE(Button()->isEnabled());
    EXPECT_EQ(Button()->toolTip(), field->toolTip());
    EXPECT_EQ(Button()->accessibleDescription(), field->accessibleDescription());
    node->SetSensitivity(KivDlgEnabled);
    EXPECT_EQ(Button()->toolTip(), "Choose a directory");
    node->SetVisibility(KivDlgHidden);
    EXPECT_FALSE(Button()->isVisible());
}

TEST_F(NativeDirectories, TheChooserBeginsWhereTheTextLeadsAndEntersWhatIsChosen)
{
    QDir().mkdir(Path("/chosen"));
    Show(Path("/no/such"));
    EXPECT_EQ(Button()->accessibleName(), "Choose a directory");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(Button()->hasFocus());
    Listener typed(*node, node->GetEditModifyNotification());
    QTest::keyClick(Button(), Qt::Key_Space);
    const QPointer<QFileDialog> chooser = field->findChild<QFileDialog*>();
    ASSERT_TRUE(chooser);
    EXPECT_EQ(chooser->directory().absolutePath(), root.path());
    ASSERT_TRUE(QTest::qWaitFor([chooser] { return chooser->isVisible(); }));
    chooser->reject();
    EXPECT_EQ(typed.heard, 0);

    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, Path("/chosen/x"));
    QFileDialog* const second = field->OpenChooser();
    EXPECT_EQ(second->directory().absolutePath(), Path("/chosen")) << "what is typed and not entered yet";
    emit second->fileSelected(Path("/chosen"));
    EXPECT_EQ(field->text(), Path("/chosen"));
    EXPECT_EQ(node->GetText(), Path("/chosen").toUtf8().constData());
    EXPECT_EQ(typed.heard, 1);
    EXPECT_FALSE(IsMarked());
    second->close();
    // A tree that goes while its directory is being chosen takes the field along.
    QFileDialog* const third = field->OpenChooser();
    delete window->Session()->FindPage("Layout")->frame.Get();
    emit third->fileSelected(Path("/chosen"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(Button());
}

} // namespace

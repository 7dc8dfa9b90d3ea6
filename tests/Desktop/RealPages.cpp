#include "Base/KivDirectory.h"
#include "Base/KivEnvironment.h"
#include "Base/KivTextCatalogue.h"
#include "Component/KivLibrary.h"
#include "Dialog/KivDlgCheckButton.h"
#include "Dialog/KivDlgCombo.h"
#include "Dialog/KivDlgDialog.h"
#include "Dialog/KivDlgLabel.h"
#include "Dialog/KivDlgPushButton.h"
#include "Dialog/KivDlgRadioButton.h"
#include "Dialog/KivUserHand.h"
#include "KivDrwSketcherSettings.h"
#include "NativeEditor.h"
#include "NativePiece.h"
#include "OptionsLayerStrip.h"
#include "OptionsMessageStrip.h"
#include "OptionsPageView.h"
#include "OptionsWindow.h"
#include "Support/KivSettingsSandbox.h"
#include "TestHand.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPixmap>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <future>
#include <gtest/gtest.h>

namespace {

// The drafting library's own pages, loaded at run time, in the real window and on real files.
class RealPages : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char* library : {KIV_COMPONENT_LIBRARIES}) ASSERT_TRUE(KivLoadLibrary(library));
        KivSettingsSandbox::Write(sandbox.File("site"), "lock int Drw_settings_GridSnapPt = 1\n");
        sandbox.NameLayers({"site"});
        KivSettingRepository::ForgetAll();
    }
    void Open(const OptionsMemory& memory = OptionsMemory(QString()))
    {
        auto* const manager = new KivUserSettingsManager;
        window = std::make_unique<OptionsWindow>(std::make_unique<KivOptionsSession>(*manager), memory);
        manager->Release();
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        ASSERT_TRUE(window->ShowPage("KivDrwOptGalEditor"));
        QTest::qWait(1);
    }
    KivDialog* Node(const char* name)
    {
        return window->Session()->FindPage("KivDrwOptGalEditor")->frame.Get()->FindDialog(name);
    }
    // On any page, and in any window of one.
    template <class T> T& Find(const char* name)
    {
        return *static_cast<T*>(window->Session()->Root().FindDialog(name));
    }
    static void Store(const char* key, int value)
    {
        KivSettingRepository::GetRepository("DraftingOptions")->WriteSetting(key, &value, 1, 0);
    }
    QWidget* WidgetOf(const char* name) { return NativePiece::Of(Node(name))->Widget(); }
    template <class Look> void LookAtEach(const char* picture, Look&& look)
    {
        const QString directory = qEnvironmentVariable("KIV_TEST_PICTURES");
        for (int page = 0; page < window->PageCount(); ++page) {
            const KivString editor = window->Session()->Pages()[static_cast<std::size_t>(page)].editor;
            SCOPED_TRACE(editor.ConvertToChar());
            ASSERT_TRUE(window->ShowPage(KivUnicodeString(editor)));
            QTest::qWait(1);
            OptionsPageView& view = window->PageView(page);
            QList<QWidget*> shown;
            for (QWidget* widget : view.findChildren<QWidget*>()) {
                const auto* piece = dynamic_cast<NativePiece*>(widget);
                if (piece && widget != view.widget() && widget->isVisibleTo(window.get())) shown << widget;
            }
            EXPECT_GE(shown.size(), 10);
            look(view, shown);
            const QString file = QString("%1-%2.png").arg(picture).arg(page);
            EXPECT_TRUE(directory.isEmpty() || window->grab().save(QDir(directory).filePath(file)));
        }
    }

    KivSettingsSandbox sandbox;
    std::unique_ptr<OptionsWindow> window;
};

TEST_F(RealPages, AnAdministratorsPadlocksAreSwitches)
{
    KivSettingRepository::SetEditedLayer(KivUnicodeString((sandbox.root / "site").string()));
    KivSettingRepository::ForgetAll();
    Open();
    const QString layer = QString::fromStdString((sandbox.root / "site").string());
    EXPECT_TRUE(window->windowTitle().contains(layer));
    EXPECT_TRUE(window->findChild<OptionsLayerStrip*>()->accessibleName().contains(layer));
    auto* const lock = static_cast<QAbstractButton*>(WidgetOf("checkGridLock"));
    const auto is = [lock](bool closed) {
        const QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(lock);
        EXPECT_EQ(heard->role(), QAccessible::CheckBox);
        EXPECT_EQ(heard->text(QAccessible::Name), "Lock “Display grid” for users");
        EXPECT_EQ(static_cast<bool>(heard->state().checked), closed);
        EXPECT_EQ(lock->focusPolicy(), Qt::StrongFocus);
        EXPECT_TRUE(lock->toolTip().contains(closed ? "let the users" : "Press to lock"))
            << lock->toolTip().toStdString();
    };
    is(false);
    lock->setFocus();
    QTest::keyClick(lock, Qt::Key_Space);
    is(true);
    QTest::keyClick(lock, Qt::Key_Return);
    is(false);
    QTest::mouseClick(lock, Qt::LeftButton);
    is(true);
    EXPECT_TRUE(WidgetOf("checkGrid_dialog")->isEnabled());
    for (const char* value : {"Locked at Off", "Locked at On"}) {
        QTest::keyClick(WidgetOf("checkGrid_dialog"), Qt::Key_Space);
        EXPECT_TRUE(lock->toolTip().contains(value)) << lock->toolTip().toStdString();
    }
    window->accept();
    EXPECT_NE(sandbox.Bytes(sandbox.File("site")).find("lock int Drw_settings_GridDisplay = 1\n"),
              std::string::npos)
        << sandbox.Bytes(sandbox.File("site"));
}

TEST_F(RealPages, LineTheirFieldsUp)
{
    Open();
    const auto left = [&](const char* name) { return WidgetOf(name)->mapTo(window.get(), QPoint()).x(); };
    EXPECT_EQ(left("editorGridSpacing_dialog"), left("editorGridGraduation_dialog"));
    EXPECT_EQ(left("editorGridSpacingV_dialog"), left("editorGridGraduationV_dialog"));
    EXPECT_EQ(left("comboBackgroundColor_dialog"), left("comboBackgroundColorDD_dialog"));
    EXPECT_EQ(window->findChild<OptionsLayerStrip*>(), nullptr) << "nobody but an administrator";

    // The empty rows of a page keep its groups apart.
    const auto gap = [&] {
        const auto groups = window->PageView(window->CurrentPage()).findChildren<QGroupBox*>();
        return groups[1]->y() - groups[0]->geometry().bottom();
    };
    const int usual = gap();
    ASSERT_TRUE(window->ShowPage("KivDrwOptGenEditor"));
    QTest::qWait(1);
    EXPECT_GT(gap(), usual);
}

TEST_F(RealPages, AreFilledWhenTurnedToButNotUnderTheUsersHand)
{
    Open();
    ASSERT_TRUE(window->ShowPage("View"));
    EXPECT_TRUE(KivUserHand::Press(Find<KivDlgPushButton>("pushGenFil")));
    const auto& chosen = Find<KivDlgRadioButton>("radioProjEd");
    EXPECT_TRUE(KivUserHand::Choose(Find<KivDlgRadioButton>("radioProjEd")));
    const int vbx = 1;
    EXPECT_TRUE(KivUserHand::Choose(Find<KivDlgCombo>("combViewMod_dialog"), vbx));
    EXPECT_TRUE(window->ShowPage("Generation"));
    EXPECT_FALSE(Find<KivDialog>("checkGenDim_dialog").IsEnabled()) << "only exact views have dimensions";

    Store("DrwExactPreview", 0);
    EXPECT_TRUE(window->ShowPage("View"));
    QTest::qWait(1);
    const auto& preview = Find<KivDlgCheckButton>("chkExactPreview_dialog");
    EXPECT_EQ(chosen.GetState(), KivDlgChecked) << "it is not stored yet";
    EXPECT_EQ(preview.GetState(), KivDlgChecked);
    EXPECT_TRUE(KivUserHand::Close(Find<KivDlgDialog>("panelGenFilTitle")));
    QTest::qWait(1);
    EXPECT_EQ(preview.GetState(), KivDlgUnchecked);
}

TEST_F(RealPages, WindowsOfOneNameHaveASizeOfTheirOwn)
{
    const QTemporaryDir directory;
    Open(OptionsMemory(directory.filePath("desktop.ini")));
    ASSERT_TRUE(window->ShowPage("View"));
    // Resizes the window that belongs to a line of the mode, and answers how large it was.
    const auto show = [&](int line, const QSize& size) {
        EXPECT_TRUE(KivUserHand::Choose(Find<KivDlgCombo>("combViewMod_dialog"), line));
        EXPECT_TRUE(KivUserHand::Press(Find<KivDlgPushButton>("pushRasterOptions")));
        auto& node = Find<KivDlgDialog>("panelRasterView");
        auto* const native = static_cast<QDialog*>(NativePiece::Of(&node)->Widget());
        const QSize shown = native->size();
        const auto* const area = native->findChild<QScrollArea*>();
        QTest::qWait(1); // bars come with an event
        EXPECT_FALSE(area->verticalScrollBar()->isVisible() || area->horizontalScrollBar()->isVisible());
        native->resize(size);
        EXPECT_TRUE(KivUserHand::Close(node));
        KivCommand::DrainDelayedDestruction();
        return shown;
    };
    const int hrv = 2, raster = 3;
    const QSize chosen(640, 420);
    show(raster, chosen);
    EXPECT_NE(show(hrv, QSize(1, 1)), chosen);
    EXPECT_EQ(show(raster, chosen), chosen);
    show(hrv, chosen); // nothing of it is cut
}

TEST_F(RealPages, WhoIsToldMayEndTheOptions)
{
    for (const bool ok : {true, false}) {
        KivSettingRepository::ForgetAll();
        Open();
        int told = 0;
        Store("Ruler", ok);
        KivSettingRepository::GetRepository("DraftingOptions")->AddListener([&](const auto&) {
            ++told;
            window.reset();
        });
        ok ? window->accept() : window->reject();
        EXPECT_FALSE(window);
        EXPECT_EQ(told, 1);
    }
    KivSettingRepository::ForgetAll();

    // Also of what was being typed, which OK enters first.
    Open();
    ASSERT_TRUE(window->ShowPage("Geometry"));
    TestHand::TypeOver(NativePiece::Of(&Find<KivDialog>("spinnerCstRefSize_dialog"))->Widget(), "7");
    KivDrwSketcherSettings& sketcher = *KivDrwSketcherSettings::GetSketcherSettings();
    const KivCallbackId callback = sketcher.AddCallback(KivSketcherSettings::Visu3DUIModification(),
                                                        [this](auto...) { window->reject(); });
    window->accept();
    sketcher.RemoveCallback(callback);
    EXPECT_FALSE(window->Session());
    EXPECT_EQ(window->result(), QDialog::Rejected);
}

TEST_F(RealPages, MarkADirectoryAsSoonAsItsPlaceAnswers)
{
    const auto answers = std::make_shared<std::promise<void>>();
    const KivDirectoryLooker real = KivSetDirectoryLooker(nullptr);
    KivSetDirectoryLooker([answers, answered = std::shared_future(answers->get_future())](const auto&, bool) {
        answered.wait_for(std::chrono::seconds(20));
        return KivDirectoryLook();
    });
    KivSettingsSandbox::Write(sandbox.File("user"), "string DrwFrameAndTitleBlockPath = \"/share\"\n");
    Open();
    ASSERT_TRUE(window->ShowPage("KivDrwOptLayoutEditor"));
    auto* const field = window->findChild<NativeEditor*>("editorTitleBlockPath_dialog");
    EXPECT_TRUE(field->Complaint().contains("does not answer"));
    EXPECT_EQ(field->accessibleDescription(), field->Complaint());
    answers->set_value();
    EXPECT_TRUE(QTest::qWaitFor([&] { return field->Complaint().contains("no such directory"); }));
    KivSetDirectoryLooker(real);
}

TEST_F(RealPages, NameAndExplainEveryControl)
{
    Open();
    EXPECT_GE(window->PageCount(), 10);
    LookAtEach("page", [](OptionsPageView&, const QList<QWidget*>& shown) {
        for (const QWidget* widget : shown) {
            const KivDialog* node = dynamic_cast<const NativePiece*>(widget)->Node();
            const std::string name = widget->objectName().toStdString();
            EXPECT_NE(widget->accessibleName(), widget->objectName()) << name;
            if (const auto* label = dynamic_cast<const QLabel*>(widget)) {
                // Headings and pictures name nothing.
                const bool names = static_cast<const KivDlgLabel*>(node)->GetLabeledControl();
                EXPECT_EQ(label->buddy() != nullptr, names) << name;
                continue;
            }
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << name;
            const bool isField =
                node->IsAKindOf(KivDlgControl::Name) && !node->IsAKindOf(KivDlgCheckButton::Name);
            EXPECT_FALSE(isField && widget->accessibleDescription().isEmpty()) << name;
            EXPECT_FALSE(!widget->isEnabled() && widget->toolTip().isEmpty()) << name;
            EXPECT_FALSE(dynamic_cast<const QAbstractButton*>(widget) && widget->toolTip().isEmpty()) << name;
        }
    });
    EXPECT_TRUE(window->Messages().Messages().isEmpty())
        << window->Messages().Messages().join('\n').toStdString();
}

TEST_F(RealPages, StillFitWhenTranslationsAreLonger)
{
    // Read anew in the other language.
    const auto speak = [](const char* language) {
        KivTextCatalogue::SetLanguage(language);
        KivTextCatalogue::SetResourceRoot("");
    };
    speak(KivTextCatalogue::kPseudoLanguage);
    Open();
    // This platform's screen is narrower than any real one; there the page scrolls.
    window->resize(1400, window->height());
    LookAtEach("longer", [&](OptionsPageView& view, const QList<QWidget*>& shown) {
        EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
        QList<QWidget*> seen;
        for (QWidget* widget : shown) {
            if (!dynamic_cast<NativePiece*>(widget)->Node()->Children().empty()) continue;
            const std::string name = widget->objectName().toStdString();
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << name;
            if (qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget)) {
                EXPECT_GE(widget->width(), widget->sizeHint().width()) << name << " is cut off";
            }
            const QRect place(widget->mapTo(window.get(), QPoint()), widget->size());
            for (const QWidget* other : seen) {
                const QRect otherPlace(other->mapTo(window.get(), QPoint()), other->size());
                EXPECT_FALSE(place.intersects(otherPlace))
                    << name << " lies on " << other->objectName().toStdString();
            }
            seen << widget;
        }
    });
    window.reset();
    speak("English");
}

} // namespace

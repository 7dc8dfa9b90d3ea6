#include "Base/KivTextCatalogue.h"
#include "Common/IconStore.h"
#include "Common/SheetColors.h"
#include "Dialog/KivDlgLabel.h"
#include "Disk/KivDirectory.h"
#include "KivDrwWorkbench.h"
#include "Native/NativeEditor.h"
#include "Options/OptionsStrips.h"
#include "OptionsFixture.h"
#include "Program/DraftingScheme.h"
#include "TestPicture.h"

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <future>

namespace {

// How the library's pages look and sound in the native window.
class RealPages : public OptionsFixture {
protected:
    void TearDown() override
    {
        QApplication::setPalette(usual);
        OptionsFixture::TearDown();
    }
    template <class Look> void LookAtEach(Look&& look)
    {
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
        }
    }
    static void Store(const char* key, int value) { Repository().WriteSetting(key, &value, 1, 0); }

    const QPalette usual = QApplication::palette();
};

TEST_F(RealPages, AnAdministratorsPadlocksAreSwitches)
{
    KivSettingRepository::SetEditedLayer(KivUnicodeString((box.root / "site").string()));
    Open();
    const QString layer = QString::fromStdString((box.root / "site").string());
    EXPECT_TRUE(window->windowTitle().contains(layer));
    EXPECT_TRUE(window->findChild<OptionsLayerStrip*>()->accessibleName().contains(layer));
    auto* const lock = WidgetOf<QAbstractButton>(Lock("checkGrid"));
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
    EXPECT_TRUE(WidgetOf("checkGrid")->isEnabled());
    for (const char* value : {"Locked at Off", "Locked at On"}) {
        QTest::keyClick(WidgetOf("checkGrid"), Qt::Key_Space);
        EXPECT_TRUE(lock->toolTip().contains(value)) << lock->toolTip().toStdString();
    }
    window->accept();
    EXPECT_NE(box.Bytes(box.File("site")).find("lock int Drw_settings_GridDisplay = 1\n"), std::string::npos)
        << box.Bytes(box.File("site"));
}

TEST_F(RealPages, LineTheirFieldsUpInEitherDirection)
{
    const auto left = [&](const char* name) { return PositionOf(Control(name)).x(); };
    for (const auto& [one, other] : {std::pair("checkGridLock", "checkSnapLock"),
                                     {"checkGridLock", "editorGridSpacingLock"},
                                     {"checkRotSnapAutoLock", "spinnerRotSnapAngleLock"},
                                     {"editorGridSpacing", "editorGridGraduation"},
                                     {"editorGridSpacingLock", "editorGridGraduationLock"},
                                     {"editorGridSpacingV", "editorGridGraduationV"},
                                     {"comboBackgroundColor", "comboBackgroundColorDD"}})
        EXPECT_EQ(left(one), left(other)) << one;
    EXPECT_EQ(left("checkGrid"), PositionOf(*Spinner("editorGridSpacing").GetLabel()).x());
    EXPECT_GT(left("editorGridSpacingV"), left("editorGridSpacing"));
    EXPECT_EQ(PositionOf(Control("editorGridSpacing")).y(), PositionOf(Control("editorGridSpacingV")).y());
    Spinner("editorGridSpacing").SetSensitivity(KivDlgDisabled);
    EXPECT_FALSE(WidgetOf(*Spinner("editorGridSpacing").GetLabel())->isEnabled());
    window->setLayoutDirection(Qt::RightToLeft);
    QTest::qWait(1);
    EXPECT_GT(left("checkGridLock"), left("checkGrid"));
    EXPECT_GT(left("editorGridSpacing"), left("editorGridSpacingV"));
    EXPECT_EQ(window->findChild<OptionsLayerStrip*>(), nullptr) << "nobody but an administrator";

    // The empty rows of a page keep its groups apart.
    const auto gap = [&] {
        const auto groups = View().findChildren<QGroupBox*>();
        return groups[1]->y() - groups[0]->geometry().bottom();
    };
    const int narrow = gap();
    OpenAt("Generation");
    QTest::qWait(1);
    EXPECT_GT(gap(), narrow);
}

TEST_F(RealPages, PutGroupsBelowOneAnotherWhereTheyDoNotFitBesideEachOther)
{
    OpenAt("Geometry");
    const auto& one = *WidgetOf(Node<KivDialog>("frameGeomCreation"));
    const auto& other = *WidgetOf(Node<KivDialog>("frameConstraint"));
    for (const auto& [width, isBeside] : {std::pair(1400, true), {640, false}, {1400, true}}) {
        window->resize(width, 500);
        QTest::qWait(1);
        EXPECT_EQ(other.x() > one.geometry().right(), isBeside) << width;
        EXPECT_EQ(other.y() > one.geometry().bottom(), !isBeside) << width;
        EXPECT_FALSE(View().horizontalScrollBar()->isVisible()) << width;
        EXPECT_TRUE(Button("OK")->isVisible());
    }
}

TEST_F(RealPages, PadlocksFollowThePaletteAtOnceAndAMissingIconIsSaidOnce)
{
    const auto inked = [this](const char* row) {
        const QColor ink = QApplication::palette().color(QPalette::WindowText);
        return TestPicture::Count(TestPicture::Take(*WidgetOf(Lock(row)), 3), ink, 60);
    };
    EXPECT_GT(inked("checkSnap"), 500);
    EXPECT_LT(inked("checkGrid"), 30) << "an open padlock is pale";
    const QPalette dark(QColor(45, 46, 50));
    ASSERT_EQ(dark.color(QPalette::WindowText), QColor(Qt::white));
    QApplication::setPalette(dark);
    QTest::qWait(10);
    EXPECT_GT(inked("checkSnap"), 500);

    IconStore store;
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(store.Icon("I_NobodyDrewThis").isNull());
    EXPECT_TRUE(store.Picture("I_NobodyDrewThis", QSize(16, 16), Qt::black).isNull());
    EXPECT_TRUE(store.Icon("").isNull());
    EXPECT_EQ(box.Said("I_NobodyDrewThis"), 1);
}

TEST_F(RealPages, AreFilledWhenTurnedToButNotUnderTheUsersHand)
{
    OpenAt("View");
    EXPECT_TRUE(Press("pushGenFil"));
    const auto& chosen = Radio("radioProjEd");
    EXPECT_TRUE(KivUserHand::Choose(Radio("radioProjEd")));
    const int vbx = 1;
    EXPECT_TRUE(KivUserHand::Choose(Combo("combViewMod"), vbx));
    EXPECT_TRUE(window->ShowPage("Generation"));
    EXPECT_FALSE(Node<KivDialog>("checkGenDim_dialog").IsEnabled()) << "only exact views have dimensions";

    Store("DrwExactPreview", 0);
    EXPECT_TRUE(window->ShowPage("View"));
    QTest::qWait(1);
    const auto& preview = Check("chkExactPreview");
    EXPECT_EQ(chosen.GetState(), KivDlgChecked) << "it is not stored yet";
    EXPECT_EQ(preview.GetState(), KivDlgChecked);
    EXPECT_TRUE(KivUserHand::Close(Node<KivDlgDialog>("panelGenFilTitle")));
    QTest::qWait(1);
    EXPECT_EQ(preview.GetState(), KivDlgUnchecked);
}

TEST_F(RealPages, WindowsOfOneNameHaveASizeOfTheirOwn)
{
    const QTemporaryDir directory;
    OpenAt("View", OptionsMemory(directory.filePath("desktop.ini")));
    // Resizes the window that belongs to a line of the mode, and answers how large it was.
    const auto show = [&](int line, const QSize& size) {
        EXPECT_TRUE(KivUserHand::Choose(Combo("combViewMod"), line));
        EXPECT_TRUE(Press("pushRasterOptions"));
        auto& node = Node<KivDlgDialog>("panelRasterView");
        auto* const native = WidgetOf<QDialog>(node);
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
        Open();
        int told = 0;
        Store("Ruler", ok);
        Repository().AddListener([&](const auto&) {
            ++told;
            window.reset();
        });
        ok ? window->accept() : window->reject();
        EXPECT_FALSE(window);
        EXPECT_EQ(told, 1);
    }

    // Also of what was being typed, which OK enters first.
    OpenAt("Geometry");
    TestHand::TypeOver(WidgetOf("spinnerCstRefSize"), "7");
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
    box.Write(file, "string DrwFrameAndTitleBlockPath = \"/share\"\n");
    OpenAt("Layout");
    auto* const field = WidgetOf<NativeEditor>("editorTitleBlockPath");
    EXPECT_TRUE(field->accessibleDescription().contains("does not answer"));
    answers->set_value();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return field->accessibleDescription().contains("no such directory"); }));
    KivSetDirectoryLooker(real);
}

// A box or button that is not ticked.
TEST_F(RealPages, AnEmptyBoxCanBeToldFromTheWindow)
{
    for (const DraftingScheme scheme : {DraftingScheme::Light, DraftingScheme::Dark}) {
        ApplyScheme(scheme);
        const QColor surface = QApplication::palette().color(QPalette::Window);
        QCheckBox check;
        QRadioButton button;
        for (QWidget* empty : {static_cast<QWidget*>(&check), static_cast<QWidget*>(&button)}) {
            empty->resize(empty->sizeHint());
            const QImage picture = TestPicture::Take(*empty);
            int told = 0;
            for (int i = 0; i < picture.width() * picture.height(); ++i) {
                const QColor at = picture.pixelColor(i % picture.width(), i / picture.width());
                told += at != QColor(Qt::white) && SheetColors::Contrast(at, surface) >= 3.0;
            }
            EXPECT_GT(told, 20) << empty->metaObject()->className();
        }
    }
}

TEST_F(RealPages, NameAndExplainEveryControl)
{
    // The letter of a label leads to its field.
    const QString title =
        QString::fromUtf8(Spinner("editorGridSpacing").GetLabel()->GetTitle().ConvertToChar());
    QTest::keyClick(window.get(), title[title.indexOf('&') + 1].toLatin1(), Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), WidgetOf("editorGridSpacing"));
    EXPECT_GE(window->PageCount(), 10);
    LookAtEach([](OptionsPageView&, const QList<QWidget*>& shown) {
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
    window.reset();
    speak(KivTextCatalogue::kPseudoLanguage);
    Open();
    // This platform's screen is narrower than any real one; there the page scrolls.
    window->resize(1400, window->height());
    LookAtEach([&](OptionsPageView& view, const QList<QWidget*>& shown) {
        EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
        QList<QWidget*> seen;
        for (QWidget* widget : shown) {
            if (!dynamic_cast<NativePiece*>(widget)->Node()->Children().empty()) continue;
            const std::string name = widget->objectName().toStdString();
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << name;
            if (qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget)) {
                EXPECT_GE(widget->width(), widget->sizeHint().width()) << name << " is cut off";
            }
            const QRect area(widget->mapTo(window.get(), QPoint()), widget->size());
            for (const QWidget* other : seen) {
                const QRect otherArea(other->mapTo(window.get(), QPoint()), other->size());
                EXPECT_FALSE(area.intersects(otherArea))
                    << name << " lies on " << other->objectName().toStdString();
            }
            seen << widget;
        }
    });
    window.reset();
    speak("English");
}

} // namespace

#include "Base/KivDiagnosticScope.h"
#include "DraftingScheme.h"
#include "IconStore.h"
#include "OptionsFixture.h"
#include "SheetColors.h"
#include "TestPicture.h"

#include <QCheckBox>
#include <QRadioButton>

namespace {

class Pictures : public OptionsFixture {
protected:
    void TearDown() override
    {
        QApplication::setPalette(usual);
        OptionsFixture::TearDown();
    }
    QPalette usual = QApplication::palette();
};

TEST_F(Pictures, PadlocksFollowThePaletteAtOnce)
{
    const auto inked = [this](const char* lock) {
        const QColor ink = QApplication::palette().color(QPalette::WindowText);
        return TestPicture::Count(TestPicture::Take(*WidgetOf(lock), 3), ink, 60);
    };
    EXPECT_GT(inked("checkSnapLock"), 500);
    EXPECT_LT(inked("checkGridLock"), 30) << "an open padlock is pale";
    const QPalette dark(QColor(45, 46, 50));
    ASSERT_EQ(dark.color(QPalette::WindowText), QColor(Qt::white));
    QApplication::setPalette(dark);
    QTest::qWait(10);
    EXPECT_GT(inked("checkSnapLock"), 500);
}

TEST_F(Pictures, AnEmptyBoxCanBeToldFromTheWindow)
{
    for (const DraftingScheme scheme : {DraftingScheme::Light, DraftingScheme::Dark}) {
        ApplyScheme(scheme);
        const QColor surface = QApplication::palette().color(QPalette::Window);
        QCheckBox box;
        QRadioButton button;
        for (QWidget* empty : {static_cast<QWidget*>(&box), static_cast<QWidget*>(&button)}) {
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

TEST_F(Pictures, ARefusedFieldLooksDifferent)
{
    TestHand::TypeOver(Spinner(), "20 apples");
    const QImage typed = TestPicture::Take(*Spinner());
    QTest::keyClick(Spinner(), Qt::Key_Return);
    EXPECT_NE(TestPicture::Take(*Spinner()), typed);
}

TEST_F(Pictures, AMissingIconIsReportedOnceAndLeavesItsPlaceEmpty)
{
    IconStore store;
    std::vector<KivDiagnostic> said;
    const KivDiagnosticScope scope(said);
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(store.Icon("I_NobodyDrewThis").isNull());
    EXPECT_TRUE(store.Picture("I_NobodyDrewThis", QSize(16, 16), Qt::black).isNull());
    EXPECT_TRUE(store.Icon("").isNull());
    EXPECT_EQ(said.size(), 1U);
}

} // namespace

#include "Kiv2DBaseOptGalFrm.h"

#include <gtest/gtest.h>

namespace {

// An application that has every group but no store of its own.
class PageWithoutStore : public Kiv2DBaseOptGalFrm {
public:
    PageWithoutStore() : Kiv2DBaseOptGalFrm(nullptr, "DrwSet") {}
    int WithFrameRuler() override { return 1; }
    int WithFrameGrid() override { return 1; }
    int WithFrameRotation() override { return 1; }
    int WithFrameColor() override { return 1; }
    int WithFrameTree() override { return 1; }
    int WithFrame2DAxis() override { return 1; }
    int WithFrameHideWhenStartWkb() override { return 1; }
};

TEST(GenericGeneralPage, ShowsZerosAndOpenPadlocksWithoutAStore)
{
    PageWithoutStore page;
    page.Build();
    page.Initialize();
    EXPECT_EQ(page.Children().size(), 7U);
    auto* grid = static_cast<KivDrwLockCheckButton*>(page.FindDialog("checkGrid"));
    EXPECT_EQ(grid->GetState(), KivDlgUnchecked);
    EXPECT_EQ(grid->GetSensitivity(), KivDlgEnabled);
    EXPECT_EQ(static_cast<KivDrwLockSpinner*>(page.FindDialog("editorGridSpacing"))->GetValue(), 0.0);

    double spacing = 7.0;
    int red = 7, green = 7, blue = 7;
    KivSettingInfo info;
    EXPECT_EQ(page.GetPrimSpaceH(spacing), E_FAIL);
    EXPECT_EQ(page.GetSheetColor(red, green, blue), E_FAIL);
    EXPECT_EQ(page.SetShowRuler(1), E_FAIL);
    EXPECT_EQ(page.GetShowRulerInfo(info), E_FAIL);
    EXPECT_EQ(spacing + red + green + blue, 0.0);
}

TEST(GenericGeneralPage, BuildsTheGroupsThatItsApplicationHas)
{
    Kiv2DBaseOptGalFrm page(nullptr, "DrwSet");
    page.Build();
    page.Initialize();
    page.Write(&page, nullptr, nullptr);
    EXPECT_TRUE(page.Children().empty());
}

} // namespace

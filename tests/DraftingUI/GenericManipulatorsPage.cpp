#include "Pages/KivDrwOptManipFrm.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

namespace {

// An application without a lock record for one of the switches.
class PageWithoutRecord : public Kiv2DBaseOptManipFrm {
public:
    PageWithoutRecord() : Kiv2DBaseOptManipFrm(nullptr, "DrwSet") {}
    int WithFrameManipulator() override { return 0; }
    int WithFrameDimManipulator() override { return 1; }
    int GetDimORunModInfo(KivSettingInfo&) override { return S_OK; }
    int SetDimORunMod(const unsigned char& value) override
    {
        stored = value;
        return S_OK;
    }
    int stored = -1;
};

TEST(GenericManipulatorsPage, LeavesOutWhatHasNoLockRecord)
{
    PageWithoutRecord page;
    page.Build();
    page.Initialize();
    EXPECT_EQ(page.FindDialog("frameManip"), nullptr);
    EXPECT_EQ(page.FindDialog("_checkDimORunCre"), nullptr);
    EXPECT_NE(page.FindDialog("_labelDimORun"), nullptr);
    auto* modification = static_cast<KivDrwLockCheckButton*>(page.FindDialog("_checkDimORunMod"));
    ASSERT_NE(modification, nullptr);
    EXPECT_EQ(modification->GetGridConstraints().column, 4) << "its cell does not move";
    static_cast<KivDlgCheckButton*>(modification->GetDialog())->SetState(KivDlgChecked, 1);
    EXPECT_EQ(page.stored, 1);
}

} // namespace

#include "Command/KivRecord.h"
#include "KivDrwDefaults.h"
#include "KivDrwSettingAccess.h"
#include "KivDrwWorkbench.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

// What a process decides once and for all is observed in processes of their own: each of these runs one of
// the disabled cases below.
namespace {

bool PassesInAProcessOfItsOwn(const std::string& name, const std::string& environment)
{
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string command = environment + " '" + program +
                                "' --gtest_also_run_disabled_tests --gtest_filter=OwnProcess.DISABLED_" +
                                name + " | grep -q '1 test ran\\|PASSED  . 1 test'";
    return std::system(command.c_str()) == 0;
}

TEST(DecidedOnce, InProcessesOfTheirOwn)
{
    EXPECT_TRUE(PassesInAProcessOfItsOwn("AutomatedRun", "KivAutomatedRun="));
    EXPECT_TRUE(PassesInAProcessOfItsOwn("OrdinaryRun", "env -u KivAutomatedRun"));
    EXPECT_TRUE(PassesInAProcessOfItsOwn("ReplayOfARecord", "env -u Sketched"));
    EXPECT_TRUE(PassesInAProcessOfItsOwn("ReplayOfARecord", "Sketched=1"));
    EXPECT_TRUE(PassesInAProcessOfItsOwn("CaptureShowsThePosition", ""));
}

TEST(OwnProcess, DISABLED_AutomatedRun)
{
    unsetenv("KivAutomatedRun"); // too late: it was read when the library was loaded
    EXPECT_EQ(DefaultGenAxisCreate() + DefaultGenCenterCreate() + DefaultGenThreadCreate(), 3);
}

TEST(OwnProcess, DISABLED_OrdinaryRun)
{
    setenv("KivAutomatedRun", "1", 1);
    EXPECT_EQ(DefaultGenAxisCreate() + DefaultGenCenterCreate() + DefaultGenThreadCreate(), 0);
}

TEST(OwnProcess, DISABLED_ReplayOfARecord)
{
    const bool isSketched = std::getenv("Sketched");
    KivRecord record(KivRecord::Mode::Replay);
    if (isSketched) record.SetSoftwareRecordLevel("QuickDimRecord", 2);
    KivRecord::SetMain(&record);
    EXPECT_EQ(DefaultDimSketch(), isSketched);
    KivRecord::SetMain(nullptr);
    EXPECT_EQ(DefaultDimSketch(), isSketched) << "decided for the life of the process";
}

TEST(OwnProcess, DISABLED_CaptureShowsThePosition)
{
    KivSettingsSandbox box;
    KivRecord record(KivRecord::Mode::Capture);
    KivRecord::SetMain(&record);
    EXPECT_EQ(KivDrwSketcherSettings::GetSketcherSettings()->GetShowPosition(), 1);
    KivRecord::SetMain(nullptr);
    EXPECT_EQ(KivDrwSketcherSettings::GetSketcherSettings()->GetShowPosition(), 1);
}

} // namespace

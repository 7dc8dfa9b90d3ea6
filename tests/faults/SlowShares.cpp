#include "Scenario.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

// Where two layers lie on a share that does not answer.
TEST(SlowShares, CostOneSecondAndNoLock)
{
    KivSettingsSandbox box;
    box.NameLayers({"share", "share/deeper", "local"});
    box.Write(box.File("local"), "lock int Snap = 1\n");
    box.Write(box.File("share"), "lock int Ruler = 1\n");
    box.Write(box.File("share/deeper"), "lock Dim*\n");
    box.Reopen();
    box.Write(box.File("local"), "lock int Snap = 2\n");
    Faults::Arm({"stuck", Faults::Open, Faults::Effect::Wait, 0, true}, 1, "/share/");
    const auto start = std::chrono::steady_clock::now();
    KivSettingRepository& repository = box.Reopen();
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took, std::chrono::milliseconds(1900)) << "one after the other";
    const int other = 7;
    for (const char* key : {"Ruler", "DimA", "Snap"})
        EXPECT_EQ(repository.WriteSetting(key, &other, 1, 0), E_FAIL);
    EXPECT_EQ(box.Read(repository, "Ruler", 0), 1);
    EXPECT_EQ(box.Read(repository, "Snap", 0), 2) << "who answers is not kept waiting by those who do not";
    EXPECT_EQ(box.Said("does not answer in time; this machine's copy"), 2);
    // The next looks do not wait for it again, nor say it again.
    for (int i = 0; i < 5; ++i) EXPECT_TRUE(repository.Refresh().empty());
    EXPECT_EQ(box.Said("does not answer in time"), 2);
    EXPECT_EQ(Faults::Disarm().times, 2);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    box.Write(box.File("share"), "lock int Ruler = 5\n");
    EXPECT_EQ(repository.Refresh().size(), 1U);
    EXPECT_EQ(box.Read(repository, "Ruler", 0), 5);
}

} // namespace

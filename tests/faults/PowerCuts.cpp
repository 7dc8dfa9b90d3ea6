#include "PowerCut.h"
#include "Scenario.h"

#include <gtest/gtest.h>

namespace {

// The line of the written file that a save changes, or what else is in it.
std::string Trouble(const Scenario& scenario, const PowerCut::Disk& disk, KivSettingsSandbox& box,
                    const std::string& after)
{
    const auto target = disk.find((box.root / scenario.Target()).string());
    const bool isThere = target != disk.end();
    const bool isNew = isThere && target->second == after;
    const bool isOld = isThere ? scenario.own && target->second == scenario.own : !scenario.own;
    if (!isNew && !isOld) return "the file is neither the old nor the new one";
    const auto isAside = [&](const auto& file) {
        return file.first.find(".damaged-") != std::string::npos && file.second == scenario.own;
    };
    if (scenario.isDamaged && isNew && std::none_of(disk.begin(), disk.end(), isAside))
        return "what was damaged is nowhere";
    if (scenario.isFirst) return box.Reopen().IsProtected() ? "the next start cannot read it" : "";
    KivSettingRepository::SetEditedLayer({});
    if (std::string open = OpenLocks(box.Reopen()); !open.empty()) return open;
    std::filesystem::rename(box.root / "company", box.root / "away");
    return OpenLocks(box.Reopen());
}

// Some file systems keep no order: what was set aside has its name before the file is replaced.
bool IsAsideNamedInTime(const std::filesystem::path& directory)
{
    bool isFlushed = true;
    for (const Faults::Operation& operation : Faults::Recorded()) {
        if (operation.call == Faults::Create && operation.path.find(".damaged-") != std::string::npos)
            isFlushed = false;
        if (operation.call == Faults::Flush && operation.path == directory) isFlushed = true;
        if (operation.call == Faults::Rename && !isFlushed) return false;
    }
    return isFlushed;
}

// Whenever the power fails in a save, and whatever the disk had of it by then.
TEST(PowerCuts, LeaveTheOldOrTheNew)
{
    for (const Scenario& scenario : kScenarios) {
        if (scenario.isLink) continue; // the same steps, elsewhere
        KivSettingsSandbox box;
        scenario.Prepare(box);
        const PowerCut cut(box.root);
        ASSERT_EQ(scenario.Act(box).LastReceipt(), Receipt::Durable) << scenario.name;
        EXPECT_TRUE(IsAsideNamedInTime(box.root / "user"));
        const std::string after = box.Bytes(box.root / scenario.Target());
        const std::vector<PowerCut::Disk> states = cut.States(false);
        EXPECT_GT(states.size(), 5U) << scenario.name;
        std::map<std::string, int> troubles;
        for (const PowerCut::Disk& disk : states) {
            cut.Put(disk);
            ++troubles[Trouble(scenario, disk, box, after)];
        }
        troubles.erase("");
        for (const auto& [trouble, count] : troubles)
            ADD_FAILURE() << scenario.name << ": " << trouble << " in " << count << " of " << states.size();
    }
}

} // namespace

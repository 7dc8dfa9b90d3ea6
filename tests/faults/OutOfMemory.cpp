#include "Scenario.h"
#include "Support/KivWatchedMemory.h"

#include <gtest/gtest.h>

namespace {

// The first thing that is wrong when one allocation of a change and its save fails; empty when nothing is.
std::string Trouble(const Scenario& scenario, int at, bool& hasStruck)
{
    KivSettingsSandbox box;
    scenario.Prepare(box);
    KivSettingRepository::SetEditedLayer(
        KivUnicodeString(scenario.isLayer ? (box.root / "site").string() : ""));
    KivSettingRepository& repository = box.Reopen();
    const Tree before = TreeOf(box.root);
    const int value = 2;
    HRESULT saved = S_OK, locked = E_FAIL;
    try {
        Faults::Arm({"no memory", Faults::Memory, Faults::Effect::Error, ENOMEM}, at, "");
        const bool isWritten = repository.WriteSetting("Changed", &value, 1, 0) == S_OK;
        locked = repository.SetLock("Pre*", true);
        saved = repository.SaveRepository(nullptr);
        repository.Refresh();
        KivSettingInfo info;
        repository.GetInfo("Locked", &info, 0);
        hasStruck = Faults::Disarm().times > 0;
        if (isWritten && box.Read(repository, "Changed", 0) != 2) return "memory has lost a change";
    } catch (...) {
        hasStruck = Faults::Disarm().times > 0;
        return "an exception leaves the interface";
    }
    const std::string target = scenario.Target();
    const bool isOld = TreeOf(box.root)[target] == (before.contains(target) ? before.at(target) : "");
    if (saved != S_OK && !isOld) return "a refused save has written";
    if (!scenario.isFirst && !OpenLocks(repository).empty()) return "a lock is open while it runs";
    repository.WriteSetting("Changed", &value, 1, 0);
    if (repository.SaveRepository(nullptr) != S_OK) return "the next save is refused too";
    const bool isStored = box.Bytes(box.root / target).find("lock Pre*") != std::string::npos;
    if (isStored != (locked == S_OK)) return "a lock was refused and set, or set and lost";
    KivSettingRepository& next = box.Reopen();
    if (box.Read(next, "Changed", 0) != 2 || box.Read(next, "Kept", 1) != 1)
        return "the next start has lost a value";
    KivSettingRepository::SetEditedLayer({});
    return scenario.isFirst ? "" : OpenLocks(box.Reopen());
}

// At every allocation, of the threads that read layers as well.
TEST(OutOfMemory, AnswersAnErrorAndLosesNothing)
{
    KivIsMemoryGiven = [] { return !Faults::IsMemoryStruck(); };
    for (const Scenario& scenario : kScenarios) {
        std::map<std::string, std::string> troubles;
        bool hasStruck = true;
        for (int at = 1; hasStruck; at += IsLong() ? 1 : 3) {
            const std::string trouble = Trouble(scenario, at, hasStruck);
            if (!trouble.empty()) troubles[trouble] += ' ' + std::to_string(at);
        }
        for (const auto& [trouble, places] : troubles)
            ADD_FAILURE() << scenario.name << ": " << trouble << places;
    }
}

} // namespace

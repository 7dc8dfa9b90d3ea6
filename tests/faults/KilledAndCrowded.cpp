#include "Scenario.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

HRESULT Put(KivSettingRepository& repository, const std::string& key, int value)
{
    return repository.WriteSetting(key.c_str(), &value, 1, 0);
}

// Starts a child for each number.
template <class Work> std::vector<pid_t> Children(int count, Work work)
{
    std::vector<pid_t> children;
    for (int who = 0; who < count; ++who) {
        children.push_back(fork());
        if (children.back() == 0) _exit(work(who) ? 0 : 1);
    }
    return children;
}

// Savers of the user's file and of a layer, killed whenever it may be.
TEST(KilledAndCrowded, KilledSaversLeaveOldOrNewAndStopNobody)
{
    KivSettingsSandbox box;
    box.NameLayers({"site"});
    box.Write(box.File("site"), "# kivsettings 1\nlock int A = 0\nint B = 0\n");
    box.Reopen();
    std::mt19937 random(7);
    const auto open = [&](bool isLayer) -> KivSettingRepository& {
        KivSettingRepository::SetEditedLayer(KivUnicodeString(isLayer ? (box.root / "site").string() : ""));
        return box.Reopen();
    };
    for (int round = 0; round < (IsLong() ? 2525 : 25); ++round) {
        const auto children = Children(4, [&](int who) {
            KivSettingRepository& repository = open(who % 2 != 0);
            for (int i = round;; ++i) {
                for (const char* key : {"A", "B", "C", "D"}) Put(repository, key, i);
                repository.SaveRepository(nullptr);
            }
            return true;
        });
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 9000));
        for (const pid_t child : children) {
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
        }
        for (const bool isLayer : {true, false}) {
            KivSettingRepository& repository = open(isLayer);
            const char* const keys[] = {isLayer ? "A" : "B", "C"}; // the user's A is the layer's
            for (const char* key : keys)
                ASSERT_EQ(box.Read(repository, key, 0), box.Read(repository, "D", 0));
            ASSERT_TRUE(box.diagnostics.empty()) << box.diagnostics[0].Message().View();
        }
        KivSettingInfo info;
        ASSERT_EQ(KivSettingRepository::GetRepository("DraftingOptions")->GetInfo("A", &info, 0), S_OK);
        ASSERT_TRUE(info.locked) << round;
    }
    for (const bool isLayer : {true, false}) {
        KivSettingRepository& repository = open(isLayer);
        Put(repository, "C", -1);
        EXPECT_EQ(repository.SaveRepository(nullptr), S_OK);
        for (const std::string& name : box.Names(isLayer ? "site" : "user"))
            EXPECT_FALSE(name.ends_with(".tmp")) << "what the dead have left is still there";
    }
}

// Each counts in keys of its own and adds one at every save.
TEST(KilledAndCrowded, EightWritersLoseNothingOfEachOther)
{
    KivSettingsSandbox box;
    constexpr int kWriters = 8;
    const int saves = IsLong() ? 500 : 40;
    const auto name = [](int who, int i) { return "Of" + std::to_string(who) + "_" + std::to_string(i); };
    const auto writers = Children(kWriters, [&](int who) {
        KivSettingRepository& repository = box.Reopen();
        bool isWell = true;
        for (int i = 0; i < saves; ++i) {
            const std::string count = "Count" + std::to_string(who);
            Put(repository, count, box.Read(repository, count.c_str(), 0) + 1);
            Put(repository, name(who, i), i);
            isWell = repository.SaveRepository(nullptr) == S_OK && isWell;
            isWell = repository.LastReceipt() == Receipt::Durable && isWell;
        }
        return isWell && box.diagnostics.empty();
    });
    for (const pid_t writer : writers) {
        int status = -1;
        waitpid(writer, &status, 0);
        EXPECT_EQ(status, 0) << "a save was refused, or something was said";
    }
    KivSettingRepository& repository = box.Reopen();
    for (int who = 0; who < kWriters; ++who) {
        EXPECT_EQ(box.Read(repository, ("Count" + std::to_string(who)).c_str(), 0), saves);
        for (int i = 0; i < saves; ++i) EXPECT_EQ(box.Read(repository, name(who, i).c_str(), -1), i);
    }
}

} // namespace

#include "Disk/KivFileLock.h"
#include "Settings/KivSettingOwnFile.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <list>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

namespace {

using namespace std::chrono_literals;

class SaveLock : public ::testing::Test {
protected:
    std::string SaysOnSaving(int value)
    {
        KivSettingRepository& repository = *KivSettingRepository::GetRepository("DraftingOptions");
        repository.WriteSetting("Ruler", &value, 1, 0);
        box.diagnostics.clear();
        repository.SaveRepository(nullptr);
        std::string said;
        for (const KivDiagnostic& diagnostic : box.diagnostics) said += diagnostic.text.View();
        return said;
    }
    struct stat LockFile() const
    {
        struct stat status {};
        lstat(lockFile.c_str(), &status);
        return status;
    }

    static std::ptrdiff_t Count(const char* directory)
    {
        return std::distance(std::filesystem::directory_iterator(directory), {});
    }

    KivSettingsSandbox box;
    const KivUnicodeString file{box.File("user").string()};
    const std::filesystem::path lockFile = box.root / "user/.DraftingOptions.kivsettings.lock";
};

TEST_F(SaveLock, IsForThoseAloneWhoMayWriteToTheDirectory)
{
    // Everybody who may read the directory can do this.
    const KivFileHandle reader(open((box.root / "user").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_EQ(flock(reader.Get(), LOCK_EX), 0);
    EXPECT_EQ(SaysOnSaving(1), "");
    EXPECT_EQ(LockFile().st_mode & 07777, 0600U);
    chmod(lockFile.c_str(), 0644);
    EXPECT_EQ(SaysOnSaving(2), "");
    EXPECT_EQ(LockFile().st_mode & 07777, 0600U);

    if (geteuid() == 0) { // what the superuser makes for others belongs to them
        std::filesystem::remove(lockFile);
        ASSERT_EQ(chown((box.root / "user").c_str(), 0, 65534), 0);
        chmod((box.root / "user").c_str(), 02770);
        KivSettingRepository::SetEditedLayer(KivUnicodeString((box.root / "user").string()));
        EXPECT_EQ(SaysOnSaving(3), "");
        EXPECT_EQ(LockFile().st_mode & 07777, 0660U);
        EXPECT_EQ(LockFile().st_gid, 65534U);
        ASSERT_EQ(chown((box.root / "user").c_str(), 65534, 0), 0);
        KivSettingRepository::SetEditedLayer({});
        chmod((box.root / "user").c_str(), 0700);
        std::filesystem::remove(lockFile);
        const KivFileLock lock(file);
        EXPECT_TRUE(lock.IsHeld());
        EXPECT_EQ(LockFile().st_uid, 65534U);
        ASSERT_EQ(chown((box.root / "user").c_str(), 0, 0), 0);
    }
    KivSettingRepository::ForgetAll();

    // What else stands in its place is neither followed nor waited for.
    const auto refuses = [&](const char* reason) {
        EXPECT_NE(SaysOnSaving(4).find(reason), std::string::npos) << reason;
        std::filesystem::remove(lockFile);
    };
    std::filesystem::remove(lockFile);
    std::filesystem::create_symlink(box.root / "elsewhere", lockFile);
    refuses("lock cannot be opened");
    EXPECT_FALSE(std::filesystem::exists(box.root / "elsewhere"));
    mkfifo(lockFile.c_str(), 0600);
    refuses("is open to others");
    EXPECT_EQ(SaysOnSaving(5), "");
    if (geteuid() == 0) {
        ASSERT_EQ(chown(lockFile.c_str(), 65534, 65534), 0);
        refuses("is open to others");
    }
}

TEST_F(SaveLock, ComesInTheOrderOfAsking)
{
    std::list<KivFileLock> asked;
    asked.emplace_back(file);
    ASSERT_TRUE(asked.front().IsHeld());
    for (int i = 0; i < 5; ++i) asked.emplace_back(file);
    for (int i = 0; i < 20; ++i) {
        asked.pop_front();
        asked.emplace_back(file); // the one who had it asks again at once
        ASSERT_TRUE(asked.front().Await(10s)) << i;
        ASSERT_TRUE(asked.front().IsHeld());
        for (auto later = std::next(asked.begin()); later != asked.end(); ++later)
            ASSERT_FALSE(later->IsHeld());
    }
}

TEST_F(SaveLock, IsOnesAloneWhenSomebodyDiesInTheLine)
{
    auto first = std::make_unique<KivFileLock>(file);
    int waits[2];
    ASSERT_EQ(pipe(waits), 0);
    const pid_t second = fork();
    if (second == 0) {
        first.reset(); // the parent still has it
        const KivFileLock lock(file);
        if (write(waits[1], "", 1) == 1) pause();
        _exit(0);
    }
    char byte = 1;
    ASSERT_EQ(read(waits[0], &byte, 1), 1);
    for (const int end : waits) close(end);
    KivFileLock third(file);
    kill(second, SIGKILL);
    waitpid(second, nullptr, 0);
    EXPECT_FALSE(third.Await(200ms));
    first.reset();
    EXPECT_TRUE(third.Await(5s));
    EXPECT_TRUE(third.IsHeld());
}

TEST_F(SaveLock, WaitingInVainLeavesOneInTheQueueAndNothingBehind)
{
    {
        const KivFileLock held(file);
        ASSERT_TRUE(held.IsHeld());
        KivFileLock(file).Await(1ms);
        const auto threads = Count("/proc/self/task"), descriptors = Count("/proc/self/fd");
        for (int i = 0; i < 20; ++i) {
            KivFileLock late(file);
            EXPECT_FALSE(late.Await(1ms));
        }
        EXPECT_LE(Count("/proc/self/task"), threads);
        EXPECT_LE(Count("/proc/self/fd"), descriptors);
    }
    KivFileLock lock(file);
    EXPECT_TRUE(lock.Await(5s));
    EXPECT_TRUE(lock.IsHeld());
}

TEST_F(SaveLock, HoldsWhenItsFileIsRemoved)
{
    auto first = std::make_unique<KivFileLock>(file);
    KivFileLock second(file);
    std::filesystem::remove(lockFile);
    EXPECT_FALSE(first->IsHeld()) << "another program may be saving by now";
    auto third = std::make_unique<KivFileLock>(file);
    EXPECT_TRUE(third->IsHeld());
    first.reset();
    EXPECT_FALSE(second.Await(100ms)) << "only one of those who save may have it";
    third.reset();
    EXPECT_TRUE(second.Await(5s));

    // Nor does a save put a file in place when it has lost the lock on the way.
    KivSettingOwnFile own(KivUnicodeString(box.File("other").string()), false);
    const auto outcome = own.Save([&] {
        std::filesystem::remove(box.root / "other/.DraftingOptions.kivsettings.lock");
        return KivSettingOwnFile::Changes{{"Ruler", {.value = 1}}};
    });
    EXPECT_EQ(outcome, KivSettingOwnFile::Receipt::Refused);
    EXPECT_EQ(box.Said("the lock file was removed meanwhile"), 1);
    EXPECT_TRUE(box.Names("other").empty());
}

} // namespace

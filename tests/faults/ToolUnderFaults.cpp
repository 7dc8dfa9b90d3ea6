#include "Scenario.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Faults::Fault;

constexpr int kDone = 0, kRefused = 1, kTrouble = 3;

class ToolUnderFaults : public testing::Test {
protected:
    ToolUnderFaults()
    {
        box.NameLayers({"company", "site"});
        box.Write(box.File("company"), "# kivsettings 1\nlock int Locked = 1\n");
        box.Write(box.File("site"), kBefore);
        box.Write(box.File("user"), kBefore);
        Run({"list"}); // which makes the copies
    }

    // The exit code of "kivsettings", which finds the layers of the sandbox.
    int Run(std::vector<std::string> words, const std::string& fault = {}) const
    {
        words.insert(words.begin(), {KIV_TOOL, "--system-layers", (box.root / "layers").string()});
        const pid_t child = fork();
        if (child == 0) {
            std::vector<char*> arguments;
            for (std::string& word : words) arguments.push_back(word.data());
            arguments.push_back(nullptr);
            const int said = creat((box.root.string() + ".said").c_str(), 0600);
            for (const int stream : {1, 2}) dup2(said, stream);
            if (!fault.empty()) {
                setenv("LD_PRELOAD", KIV_FAULT_POINTS, 1);
                setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
                setenv("KIV_FAULT", fault.c_str(), 1);
            }
            execv(KIV_TOOL, arguments.data());
            _exit(127);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    // Runs it with every fault at its calls, and has the exit code and the disk checked.
    void RunWithFaults(const std::vector<std::string>& words,
                       const std::function<void(int code)>& check) const
    {
        const std::string notice = box.root.string() + ".struck";
        for (const Fault& fault : kFaults) {
            bool hasStruck = true;
            for (int at = 1; hasStruck; at += IsLong() ? 1 : 7) {
                std::ostringstream text;
                text << fault.calls << ' ' << static_cast<int>(fault.effect) << ' ' << fault.error << ' '
                     << fault.lasts << ' ' << at << ' ' << box.root.string() << ' ' << notice;
                SCOPED_TRACE(fault.name + (" at " + std::to_string(at)) + " of " + words.back());
                const int code = Run(words, text.str());
                hasStruck = std::filesystem::remove(notice) || code == Faults::kCrashed;
                EXPECT_TRUE(hasStruck || at > 1) << "has never struck";
                check(code);
            }
        }
    }
    ~ToolUnderFaults() override { std::filesystem::remove(box.root.string() + ".said"); }

    static constexpr const char* kBefore = "# kivsettings 1\nint Kept = 1\nint Changed = 1\n";
    KivSettingsSandbox box;
};

// A save from a script, of the user's file and of a layer.
TEST_F(ToolUnderFaults, TheExitCodeTellsTheTruth)
{
    for (const std::string directory : {"user", "site"}) {
        std::vector<std::string> set{"set", "--force", "--type", "int", "Changed=2", "Fresh=2"};
        if (directory == "site") set.insert(set.end(), {"--layer", (box.root / "site").string()});
        const auto restore = [&] { box.Write(box.File(directory), kBefore); };
        const auto bytes = [&] { return box.Bytes(box.File(directory)); };
        ASSERT_EQ(Run(set), kDone);
        const std::string after = bytes();
        restore();
        RunWithFaults(set, [&](int code) {
            EXPECT_TRUE(code == kDone || code == kRefused || code == kTrouble || code == Faults::kCrashed)
                << code;
            EXPECT_TRUE(bytes() == after || (bytes() == kBefore && code != kDone)) << code << bytes();
            EXPECT_EQ(Run(set), kDone);
            EXPECT_EQ(bytes(), after);
            restore();
        });
    }
}

TEST_F(ToolUnderFaults, ALockedKeyStaysLocked)
{
    RunWithFaults({"set", "--force", "--type", "int", "Locked=2"}, [&](int code) {
        EXPECT_TRUE(code == kRefused || code == kTrouble || code == Faults::kCrashed) << code;
        EXPECT_EQ(box.Bytes(box.File("user")), kBefore);
    });
}

} // namespace

#pragma once

#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

// What a command line came to.
struct ToolRun {
    int code = -1;
    std::string out, err;
};

// The program as a user starts it: through a shell, in settings of its own.
class ToolTest : public testing::Test {
protected:
    ToolTest() { box.NameLayers({}); }

    // A line of the shell, in the sandbox's root and with what sessions/head.bash offers.
    ToolRun Run(const std::string& line) const
    {
        const std::string root = box.root.string();
        KivSettingsSandbox::Write(box.root / "script", line + "\n");
        const std::string script =
            "cd '" + root + "'; KIV_TOOL='" KIV_TOOL "'; . '" KIV_TOOL_SESSIONS "/head.bash'; . ./script";
        const std::string command = "bash -c \"" + script + "\" >'" + root + ".out' 2>'" + root + ".err'";
        const int status = std::system(command.c_str());
        const ToolRun run{WIFEXITED(status) ? WEXITSTATUS(status) : -1, Told(".out"), Told(".err")};
        std::filesystem::remove(box.root / "script");
        return run;
    }

    KivSettingsSandbox box;

private:
    std::string Told(const char* stream) const
    {
        const std::string path = box.root.string() + stream;
        std::string told = KivSettingsSandbox::Bytes(path);
        std::filesystem::remove(path);
        return told;
    }
};

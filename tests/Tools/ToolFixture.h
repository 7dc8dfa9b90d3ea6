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

    // Runs "kivsettings <line>"; the line is the shell's, quotes and redirections included. $root leads to
    // the sandbox.
    ToolRun Run(const std::string& line) const { return Shell("kivsettings " + line); }

    ToolRun Shell(const std::string& script) const
    {
        const std::string root = box.root.string();
        const std::string head = "root='" + root + "'; kivsettings() { '" KIV_TOOL "' --system-layers '" +
                                 root + "/layers' \"$@\"; }; ";
        KivSettingsSandbox::Write(box.root / "script", head + script + "\n");
        const int status =
            std::system(("bash '" + root + "/script' >'" + root + "/out' 2>'" + root + "/err'").c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, KivSettingsSandbox::Bytes(box.root / "out"),
                KivSettingsSandbox::Bytes(box.root / "err")};
    }

    // Expects the exit code, and what the two streams hold (empty: nothing at all).
    void Expect(const std::string& line, int code, const std::string& out, const std::string& err = {}) const
    {
        const ToolRun run = Run(line);
        EXPECT_EQ(run.code, code) << line << "\n" << run.err;
        EXPECT_EQ(run.out, out) << line;
        EXPECT_EQ(err.empty(), run.err.empty()) << line << "\n" << run.err;
        EXPECT_NE(run.err.find(err), std::string::npos) << line << "\n" << run.err;
    }

    std::string User() const { return KivSettingsSandbox::Saved(box.File("user")); }
    std::string Path(const std::string& layer) const { return box.File(layer).string(); }

    KivSettingsSandbox box;
};

#include "KivDrwWorkbench.h"
#include "ToolFixture.h"

#include <set>

namespace {

// The words in the left column below a heading of a help text.
std::set<std::string> LeftColumn(const std::string& help, const std::string& heading)
{
    std::set<std::string> words;
    std::istringstream lines(help.substr(std::min(help.find(heading + "\n"), help.size())));
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line) && !line.empty()) words.insert(line.substr(2, line.find(' ', 2) - 2));
    return words;
}

class Explained : public ToolTest {
protected:
    // What completion offers for the last of some words.
    std::string Completed(const std::string& words) const
    {
        return Run(". '" KIV_TOOL_COMPLETION "'; COMP_WORDS=('" KIV_TOOL "' " + words +
                   "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
                   "_kivsettings; echo \" ${COMPREPLY[*]} \"")
            .out;
    }
    // A command's part of the manual page, without the escapes of its dashes.
    static std::string Manual(const std::string& from, const std::string& to)
    {
        std::string page = KivSettingsSandbox::Bytes(KIV_TOOL_MANUAL);
        for (std::size_t at = 0; (at = page.find("\\-", at)) != std::string::npos;) page.erase(at, 1);
        const std::size_t begin = page.find(from);
        if (begin == std::string::npos) return {};
        return page.substr(begin, page.find(to, begin + 1) - begin);
    }
};

TEST_F(Explained, HelpManualAndCompletionNameTheSameCommandsAndOptions)
{
    const std::string overview = Run("kivsettings help").out;
    const auto commands = LeftColumn(overview, "Commands:");
    EXPECT_TRUE(commands.contains("set"));
    const auto common = LeftColumn(overview, "Options of every command:");
    for (const std::string& option : common)
        EXPECT_NE(Manual(".SH OPTIONS", ".SH EXIT").find(option), std::string::npos) << option;
    for (const std::string& command : commands) {
        EXPECT_NE(Completed("''").find(" " + command + " "), std::string::npos) << command;
        const ToolRun help = Run("kivsettings help " + command);
        EXPECT_EQ(help.out, Run("kivsettings " + command + " --help").out);
        EXPECT_NE(help.out.find("\nExamples:\n  kivsettings " + command), std::string::npos) << help.out;
        std::string manual = Manual(".SS " + command + "\n", "\n.S");
        if (manual.empty()) manual = Manual(".SS " + command + " ", "\n.S");
        EXPECT_FALSE(manual.empty()) << command;
        const std::string offered = Completed(command + " --");
        std::set<std::string> options = LeftColumn(help.out, "Options:");
        for (const std::string& option : options) {
            EXPECT_NE(offered.find(" " + option + " "), std::string::npos) << command << option << offered;
            EXPECT_TRUE(common.contains(option) || manual.find(option) != std::string::npos)
                << command << option;
        }
        // Nothing in the manual that the command does not have.
        for (std::size_t at = 0; (at = manual.find("--", at)) != std::string::npos; at += 2) {
            const std::string named =
                manual.substr(at, manual.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at) - at);
            EXPECT_TRUE(options.contains(named)) << command << " " << named;
        }
    }
    EXPECT_EQ(Completed("set Rul"), " Ruler= \n");
    EXPECT_EQ(Completed("reset D"), " Dimension \n");
    EXPECT_EQ(Completed("list --page Ge"), " General Generation Geometry \n");
    EXPECT_EQ(Run("kivsettings list --page trel").out, Run("kivsettings list --page Compatibility").out)
        << "its name before";
}

TEST_F(Explained, NothingIsWrongWithAFirstStart)
{
    if (geteuid() != 0) GTEST_SKIP() << "what a mere user owns binds nobody, and is told each time";
    KivDrwOptionsServices::InitOptionsOnDisk();
    EXPECT_EQ(Run("kivsettings check").err, "kivsettings: nothing is wrong in 1 file\n");
    EXPECT_EQ(Run("kivsettings list --changed").out, "KivDrwQmtAnnotLay\tint\t4\t0\tinitial\t-\tView\n");
}

} // namespace

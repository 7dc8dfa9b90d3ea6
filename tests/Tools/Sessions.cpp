#include "ToolFixture.h"

#include <unistd.h>

// The cases are data: each file of sessions/ holds some, as a user would see them at a prompt.
//   == NameOfACase         or "== NameOfACase (root)" when it is for the superuser alone
//   $ command
//   what it prints; what goes to the other stream begins with "! "
//   [code]                 unless it is 0
//   ## a remark
// The sandbox's root is shown as "~", and no empty lines. In what is expected "..." stands for anything.

namespace {

struct Session {
    std::string name;
    bool isForRoot = false;
    std::vector<std::pair<std::string, std::string>> steps; // command and what it shows
};

void PrintTo(const Session& session, std::ostream* out)
{
    *out << session.name;
}

std::vector<Session> Sessions()
{
    std::vector<Session> sessions;
    for (const auto& entry : std::filesystem::directory_iterator(KIV_TOOL_SESSIONS)) {
        if (entry.path().extension() != ".session") continue;
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with("== "))
                sessions.push_back({line.substr(3, line.find(' ', 3) - 3), line.ends_with(" (root)"), {}});
            else if (line.starts_with("$ "))
                sessions.back().steps.emplace_back(line.substr(2), "");
            else if (!line.empty() && !line.starts_with("## "))
                sessions.back().steps.back().second += line + "\n";
        }
    }
    return sessions;
}

// What a user sees of a run.
std::string Shown(const ToolRun& run, const std::string& root)
{
    std::string shown;
    for (const auto& [text, mark] : {std::pair(run.out, ""), {run.err, "! "}}) {
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);)
            if (!line.empty()) shown += mark + line + "\n";
    }
    if (run.code != 0) shown += "[" + std::to_string(run.code) + "]\n";
    for (std::size_t at = 0; (at = shown.find(root, at)) != std::string::npos;)
        shown.replace(at, root.size(), "~");
    return shown;
}

bool Fits(std::string_view shown, std::string_view expected)
{
    const std::size_t dots = expected.find("...");
    if (dots == std::string_view::npos) return shown == expected;
    if (!shown.starts_with(expected.substr(0, dots))) return false;
    expected.remove_prefix(dots + 3);
    for (std::size_t at = dots; at <= shown.size(); ++at)
        if (Fits(shown.substr(at), expected)) return true;
    return false;
}

class Shell : public ToolTest, public testing::WithParamInterface<Session> {};

TEST_P(Shell, Shows)
{
    if (GetParam().isForRoot && geteuid() != 0) GTEST_SKIP() << "for the superuser alone";
    for (const auto& [command, expected] : GetParam().steps) {
        const std::string shown = Shown(Run(command), box.root.string());
        EXPECT_TRUE(Fits(shown, expected)) << "$ " << command << "\n" << shown << "instead of\n" << expected;
    }
}

INSTANTIATE_TEST_SUITE_P(Session, Shell, testing::ValuesIn(Sessions()),
                         [](const auto& made) { return made.param.name; });

} // namespace

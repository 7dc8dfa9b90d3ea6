#include "Scenario.h"

#include <gtest/gtest.h>

namespace {

// Saved over and over, and read again each time.
std::string Lost(KivSettingsSandbox& box, const std::string& text, const std::vector<const char*>& changes)
{
    box.Write(box.File("user"), text);
    box.diagnostics.clear();
    std::map<const char*, int> expected{{"A", 1}, {"B", 1}};
    for (const char* change : changes) {
        const int value = ++expected[change];
        box.Reopen().WriteSetting(change, &value, 1, 0);
        KivSettingRepository::GetRepository("DraftingOptions")->SaveRepository(nullptr);
        const KivSettingRepository& repository = box.Reopen();
        for (const auto& [key, stored] : expected)
            if (box.Read(repository, key, 0) != stored) return key;
        if (box.Read(repository, "C", KivUnicodeString()) != "x") return "C";
    }
    return box.diagnostics.empty() ? "" : box.diagnostics[0].Message().ConvertToChar();
}

// Every mixture of a byte-order mark, a head and ends of lines.
TEST(LineEnds, CostNoValue)
{
    KivSettingsSandbox box;
    std::vector<std::string> texts{"", "\xef\xbb\xbf"};
    for (const std::vector<std::string>& next : std::vector<std::vector<std::string>>{
             {"", "# kivsettings 1\n", "# kivsettings 1\r\n", "# mine\n"},
             {"int A = 1\n", "int A = 1\r\n"},
             {"int B = 1\n", "int B = 1\r\n"},
             {"string C = \"x\"", "string C = \"x\"\n", "string C = \"x\"\r\n", "string C = \"x\"\r"}}) {
        std::vector<std::string> longer;
        for (const std::string& text : texts)
            for (const std::string& line : next) longer.push_back(text + line);
        texts = longer;
    }
    for (const char* last : {"", "\r"})
        texts.push_back("# kivsettings 1\rint A = 1\rint B = 1\rstring C = \"x\"" + std::string(last));
    for (const std::string& text : texts)
        for (const std::vector<const char*>& changes :
             {std::vector{"B", "New", "B", "Newer"}, std::vector{"A", "B", "A"}, std::vector{"New", "A"}})
            EXPECT_EQ(Lost(box, text, changes), "")
                << testing::PrintToString(text) << " after " << changes[0];
}

} // namespace

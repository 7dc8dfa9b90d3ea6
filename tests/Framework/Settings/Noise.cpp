#include "Fuzz/SettingFileProperties.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// Lines as people and programs write them, and what becomes of them.
std::string Noise(std::mt19937& random)
{
    static const char* const words[] = {
        " ",        "\t",         "lock ", "initial ", "int ", "unsigned ", "float ", "double ", "string ",
        "bool ",    "Ruler",      "Dim",   "DimA",     "*",    "_",         "9",      " = ",     "=",
        "-1",       "4294967296", "1e400", "0x10",     "nan",  "inf",       "1,5",    "0.1",     "\"",
        "\"text\"", "\\",         "\\x4",  "\\n",      "\xff", "\xc3\xa4",  "#"};
    static const char* const between[] = {
        "\n", "\n", "\n", "\r\n", "\xef\xbb\xbf", "# kivsettings 1", "# kivsettings 9"};
    std::string text;
    for (auto count = random() % 60; count-- > 0;)
        text += random() % 6 ? words[random() % std::size(words)] : between[random() % std::size(between)];
    if (random() % 3 == 0 && !text.empty()) text[random() % text.size()] = static_cast<char>(random() % 256);
    if (random() % 20 == 0) text.insert(random() % (text.size() + 1), 1, '\0');
    return text;
}

TEST(Noise, NoBytesBreakTheReaderOrTheWriter)
{
    for (const auto& sample : std::filesystem::directory_iterator(KIV_TEST_DATA "/settings")) {
        EXPECT_EQ(BrokenProperty(KivSettingsSandbox::Bytes(sample.path())), nullptr) << sample.path();
    }
    std::mt19937 random(20240607);
    for (int i = 0; i < 30000; ++i) {
        const std::string text = Noise(random);
        const char* broken = BrokenProperty(text);
        ASSERT_EQ(broken, nullptr) << broken << " in round " << i << ":\n" << text;
    }
}

} // namespace

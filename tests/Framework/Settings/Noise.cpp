#include "Fuzz/SettingFileProperties.h"
#include "Settings/KivSettingLayer.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <random>
#include <sys/stat.h>

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

// No lock opens and no other value is served.
TEST(Noise, SpoiledPatternsOpenNoLock)
{
    KivSettingsSandbox box;
    box.NameLayers({"site"});
    const std::string whole = "# kivsettings 1\nlock int Ruler = 1\nlock Dim*\n";
    const auto file = box.File("site");
    box.Write(file, whole);
    box.Reopen();
    const auto check = [&](const std::string& bytes) {
        box.Write(file, bytes);
        KivSettingRepository& repository = box.Reopen();
        const int other = 7;
        const bool isLocked = repository.WriteSetting("Ruler", &other, 1, 0) == E_FAIL &&
                              repository.WriteSetting("DimA", &other, 1, 0) == E_FAIL;
        return isLocked && box.Read(repository, "Ruler", 0) == 1;
    };
    for (const char* pattern : {"lock Di m*", "lock Dim*x", "lock Dim* = 4", "lock **", "Dim*", "lock 1*",
                                "lock int Dim* = 4", "lock Dim*"})
        EXPECT_TRUE(check(std::string("lock int Ruler = 1\n") + pattern + "\n")) << pattern;
}

// What others could replace is neither used nor written.
TEST(Noise, ADirectoryThatOthersMayWriteToIsRefused)
{
    KivSettingsSandbox box;
    box.Write(box.File("user"), "int Ruler = 1\n");
    const int other = 7;
    const auto isRefused = [&](const char* words) {
        box.diagnostics.clear();
        KivSettingRepository& repository = box.Reopen();
        EXPECT_TRUE(repository.IsProtected()) << words;
        EXPECT_EQ(box.Read(repository, "Ruler", 0), 0);
        repository.WriteSetting("Grid", &other, 1, 0);
        EXPECT_EQ(repository.SaveRepository(nullptr), E_FAIL);
        EXPECT_GT(box.Said(words), 0) << words;
        EXPECT_EQ(box.Bytes(box.File("user")), "int Ruler = 1\n");
    };
    const std::string directory = (box.root / "user").string();
    KivSettingRepository& readBefore = box.Reopen();
    readBefore.WriteSetting("Grid", &other, 1, 0);
    chmod(directory.c_str(), 0777);
    EXPECT_EQ(readBefore.SaveRepository(nullptr), E_FAIL);
    isRefused("written to by every user");
    chmod(directory.c_str(), 01777);
    isRefused("written to by every user");
    if (geteuid() == 0) {
        ASSERT_EQ(chown(directory.c_str(), 65534, 65534), 0);
        chmod(directory.c_str(), 0755);
        isRefused("belongs to another user (number 65534)");
        ASSERT_EQ(chown(directory.c_str(), 0, 65534), 0);
        chmod(directory.c_str(), 0775);
        isRefused("written to by a group of users");
        KivSettingRepository::SetEditedLayer(KivUnicodeString(directory));
        EXPECT_FALSE(box.Reopen().IsProtected()) << "administrators share a layer by a group";
        KivSettingRepository::SetEditedLayer({});
        ASSERT_EQ(chown(directory.c_str(), 0, 0), 0);
    }
    // So is the place that a link leads to; put right, what was changed meanwhile is saved.
    chmod(directory.c_str(), 0755);
    std::filesystem::create_directory(box.root / "open");
    std::filesystem::rename(box.File("user"), box.File("open"));
    std::filesystem::create_symlink(box.File("open"), box.File("user"));
    chmod((box.root / "open").c_str(), 0777);
    isRefused("written to by every user");
    KivSettingRepository& repository = *KivSettingRepository::GetRepository("DraftingOptions");
    chmod((box.root / "open").c_str(), 0755);
    EXPECT_EQ(repository.SaveRepository(nullptr), S_OK);
    EXPECT_EQ(box.Saved(box.File("open")), "int Ruler = 1\nint Grid = 7\n");
    EXPECT_TRUE(std::filesystem::is_symlink(box.File("user")));
}

} // namespace

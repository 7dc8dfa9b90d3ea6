#include "Base/KivChecksum.h"
#include "Settings/KivSettingOwnFile.h"
#include "Settings/KivSettingRepository.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

namespace {

using State = KivSettingSeal::State;

TEST(Seals, EveryMixtureOfLineEndsKeepsEveryValue)
{
    const std::vector<std::string> keys{"A", "B", "C", "D"}; // D is new
    const auto check = [&keys](const std::string& text) {
        for (const std::string& changed : keys) {
            std::string saved = text;
            for (const int value : {7, 8})
                saved = *KivSettingFile(saved).With({{KivString(changed.c_str()), {.value = value}}}).text;
            std::string read;
            const KivSettingFile file(saved);
            for (const KivSettingLine& line : file.Lines())
                if (line.number > 1)
                    read += std::string(line.key) + std::to_string(std::get<int>(line.value));
            std::string expected = changed == "D" ? "A1B2C3D8" : "A1B2C3";
            if (changed != "D") expected[expected.find(changed) + 1] = '8';
            EXPECT_EQ(read, expected) << testing::PrintToString(text);
            EXPECT_FALSE(file.IsDamaged());
            EXPECT_EQ(file.SealState(), State::Fits);
        }
    };
    const char* const ends[] = {"\n", "\r\n", "\r"};
    for (const std::string head : {"", "\xef\xbb\xbf", "# kivsettings 1", "\xef\xbb\xbf# kivsettings 1"})
        for (const std::string first : ends)
            for (const std::string second : ends)
                for (const std::string last : {"", "\n", "\r\n", "\r", "\n\r"})
                    check(head + (head.ends_with('1') ? first : "") + "int A = 1" + first + "int B = 2" +
                          second + "int C = 3" + last);
}

TEST(Seals, EveryCutAndEveryFlippedBitShows)
{
    for (const std::string end : {"\n", "\r\n", "\r"}) {
        for (const std::string mark : {"", "\xef\xbb\xbf"}) {
            std::string text = mark;
            for (const char* line : {"# ours", "lock int Ruler = 1", "lock Dim*", "", "string S = \"x\""})
                text += line + end;
            const std::string sealed = KivSettingSeal::Put(text);
            ASSERT_EQ(KivSettingSeal::StateOf(sealed), State::Fits);
            EXPECT_EQ(KivSettingSeal::StateOf(text), State::None);
            EXPECT_EQ(KivSettingSeal::StateOf(sealed + end), State::Broken);
            for (std::size_t cut = std::max<std::size_t>(mark.size(), 1); cut < sealed.size(); ++cut)
                EXPECT_EQ(KivSettingSeal::StateOf(sealed.substr(0, cut)), State::Broken) << cut;
            for (std::size_t bit = 0; bit < 8 * sealed.size(); ++bit) {
                std::string flipped = sealed;
                flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << bit % 8));
                EXPECT_EQ(KivSettingSeal::StateOf(flipped), State::Broken) << flipped;
            }
        }
    }
    // The same in every version and on every machine, else every seal would be broken.
    EXPECT_EQ(KivChecksumText(""), "96534180dd7a79a4");
    EXPECT_EQ(KivChecksumText("Some text that is longer than one block of them"), "b6e5580f014c6b6a");
}

// What an editor, a cut or a failing disk has made of a layer counts only once an administrator accepts it.
TEST(Seals, ALayerCountsAsItWasSealed)
{
    KivSettingsSandbox box;
    box.NameLayers({"site"});
    const auto file = box.File("site");
    const std::string sealed = KivSettingSeal::Put("lock int Ruler = 1\nlock Dim*\n");
    box.Write(file, sealed);
    box.Reopen();
    const int other = 7;
    for (const std::string& text : std::vector<std::string>{
             "", "# kivsettings 1 sealed\n", sealed.substr(0, sealed.find("lock Dim")),
             sealed + "int More = 1\n", "lock Dim*\n" + sealed, "lock bool Ruler = 1\nlock Dim*\n",
             "lock soft int Ruler = 1\nlock Dim*\n"}) {
        box.Write(file, text);
        box.diagnostics.clear();
        KivSettingRepository& repository = box.Reopen();
        EXPECT_EQ(repository.WriteSetting("DimA", &other, 1, 0), E_FAIL) << text;
        EXPECT_EQ(box.Read(repository, "Ruler", 0), 1) << text;
        EXPECT_EQ(box.Said("copy of its last complete state is in force"), 1) << text;
    }

    // Who edits it learns the way, and does not seal by a save what nobody looked at.
    const std::string edit = sealed + "lock int Snap = 1\n";
    box.Write(file, edit);
    KivSettingRepository::SetEditedLayer(KivUnicodeString((box.root / "site").string()));
    box.diagnostics.clear();
    KivSettingRepository& site = box.Reopen();
    EXPECT_EQ(box.Read(site, "Snap", 0), 1);
    EXPECT_EQ(site.WriteSetting("Grid", &other, 1, 0), S_OK);
    EXPECT_EQ(site.SaveRepository(nullptr), E_FAIL);
    EXPECT_EQ(box.Said("kivsettings seal --layer " + (box.root / "site").string() + "\" accepts it"), 2);
    EXPECT_EQ(box.Bytes(file), edit);
    EXPECT_EQ(KivSettingOwnFile(KivUnicodeString(file.string()), true).Seal(),
              KivSettingOwnFile::Receipt::Durable);
    EXPECT_EQ(box.Saved(file), "lock int Ruler = 1\nlock Dim*\nlock int Snap = 1\n");
    EXPECT_EQ(site.SaveRepository(nullptr), S_OK);

    // One line withdraws a layer.
    KivSettingRepository::SetEditedLayer({});
    box.Write(file, "# kivsettings 1\n");
    EXPECT_EQ(box.Reopen().WriteSetting("DimA", &other, 1, 0), S_OK);
}

} // namespace

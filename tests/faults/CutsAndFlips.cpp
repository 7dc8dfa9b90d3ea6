#include "Scenario.h"
#include "Settings/KivSettingSeal.h"

#include <gtest/gtest.h>

#include <set>

namespace {

// A file that our own programs wrote, and what damage to it must not do.
struct Subject {
    const char* name;
    const char* file;      // below the sandbox
    bool isEdited = false; // opened by an administrator, changed and saved
};
const Subject kSubjects[] = {{"user's file", "user/DraftingOptions.kivsettings"},
                             {"layer", "company/DraftingOptions.kivsettings"},
                             {"edited layer", "company/DraftingOptions.kivsettings", true},
                             {"list of layers", "layers"}};

using Numbers = std::map<std::string, int>; // how many pieces of damage did what

class CutsAndFlips : public testing::TestWithParam<std::size_t> {
protected:
    CutsAndFlips()
    {
        box.NameLayers({"company"});
        box.Write(box.root / "layers", KivSettingSeal::Put(box.Bytes(box.root / "layers")));
        const auto save = [&](const char* layer, bool isLocking) {
            KivSettingRepository::SetEditedLayer(KivUnicodeString(layer ? (box.root / layer).string() : ""));
            KivSettingRepository& repository = box.Reopen();
            const double real = 15.5;
            const KivUnicodeString text("a\"b\\c");
            const int one = 1;
            for (const char* key : {"Locked", "Kept", "Changed"}) repository.WriteSetting(key, &one, 1, 0);
            repository.WriteSetting("Real", &real, 1, 0);
            repository.WriteSetting("Text", &text, 1, 0);
            if (isLocking)
                for (const char* key : {"Locked", "Dim*"}) repository.SetLock(key, true);
            EXPECT_EQ(repository.SaveRepository(nullptr), S_OK);
        };
        std::filesystem::create_directory(box.root / "company");
        save("company", true);
        save(nullptr, false);
        box.Reopen();
    }

    // What the damage has done; "noticed" is all that it may do.
    std::string Effect(const Subject& subject, const std::string& bytes)
    {
        box.Write(box.root / subject.file, bytes);
        box.diagnostics.clear();
        KivSettingRepository::SetEditedLayer(
            KivUnicodeString(subject.isEdited ? (box.root / "company").string() : ""));
        KivSettingRepository& repository = box.Reopen();
        if (box.diagnostics.empty()) return "unnoticed";
        if (subject.file[0] == 'u' && IsIntactLost(repository, bytes)) return "intact line lost";
        const int two = 2;
        repository.WriteSetting("Changed", &two, 1, 0);
        const bool isSaved = repository.SaveRepository(nullptr) == S_OK;
        if (subject.isEdited && isSaved) return "saved as if it were whole";
        KivSettingRepository::SetEditedLayer({});
        const KivSettingRepository& next = box.Reopen();
        if (!OpenLocks(next).empty()) return "lock open";
        if (subject.file[0] == 'u' && IsIntactLost(next, bytes)) return "intact line lost by a save";
        if (subject.file[0] == 'u') std::filesystem::remove_all(box.root / "user");
        return "noticed";
    }

    static bool IsIntactLost(const KivSettingRepository& repository, const std::string& bytes)
    {
        const auto stands = [&](const char* line) {
            return ("\n" + bytes).find("\n" + std::string(line) + "\n") != std::string::npos;
        };
        return (stands("int Kept = 1") && KivSettingsSandbox::Read(repository, "Kept", 0) != 1) ||
               (stands("double Real = 15.5") && KivSettingsSandbox::Read(repository, "Real", 0.0) != 15.5) ||
               (stands("string Text = \"a\\\"b\\\\c\"") &&
                KivSettingsSandbox::Read(repository, "Text", KivUnicodeString()) != "a\"b\\c");
    }

    KivSettingsSandbox box;
};

TEST_P(CutsAndFlips, AreNoticedAndOpenNoLock)
{
    const Subject& subject = kSubjects[GetParam()];
    const std::string whole = box.Bytes(box.root / subject.file);
    Numbers numbers;
    for (std::size_t cut = 0; cut < whole.size(); ++cut) ++numbers[Effect(subject, whole.substr(0, cut))];
    for (std::size_t bit = 0; bit < 8 * whole.size(); bit += IsLong() ? 1 : 5) {
        std::string bytes = whole;
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
        ++numbers[Effect(subject, bytes)];
    }
    EXPECT_GT(numbers["noticed"], 0);
    numbers.erase("noticed");
    for (const auto& [effect, count] : numbers)
        ADD_FAILURE() << subject.name << ": " << effect << ": " << count;
    box.Write(box.root / subject.file, whole);
    box.diagnostics.clear();
    EXPECT_EQ(OpenLocks(box.Reopen()), "");
    EXPECT_TRUE(box.diagnostics.empty()) << "the whole file is believed";
}

INSTANTIATE_TEST_SUITE_P(All, CutsAndFlips, testing::Range<std::size_t>(0, std::size(kSubjects)));

} // namespace

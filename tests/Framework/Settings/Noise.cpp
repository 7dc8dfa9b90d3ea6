#include "FaultyDisk.h"
#include "Fuzz/SettingFileProperties.h"
#include "Settings/KivSettingLayer.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

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

// Of every cut and every flipped bit: no lock opens and no other value is served.
TEST(Noise, CutAndFlippedLayersOpenNoLock)
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
    // A cut behind a line looks like an edit; what is within one, or leaves nothing, does not.
    for (std::size_t cut = 0; cut < whole.size(); ++cut) {
        if (cut > 0 && whole[cut - 1] == '\n') continue;
        EXPECT_TRUE(check(whole.substr(0, cut))) << cut;
    }
    for (const char* pattern : {"lock Di m*", "lock Dim*x", "lock Dim* = 4", "lock **", "Dim*", "lock 1*",
                                "lock int Dim* = 4", "lock Dim*"})
        EXPECT_TRUE(check(std::string("lock int Ruler = 1\n") + pattern + "\n")) << pattern;
    for (const std::size_t word : {whole.find("lock int"), whole.find("lock Dim")}) {
        for (std::size_t bit = 0; bit < 4 * 8; ++bit) {
            std::string bytes = whole;
            bytes[word + bit / 8] = static_cast<char>(bytes[word + bit / 8] ^ (1 << bit % 8));
            EXPECT_TRUE(check(bytes)) << bytes;
        }
    }
}

TEST(Noise, AStuckShareCostsOneSecondAndNoLock)
{
    KivSettingsSandbox box;
    box.NameLayers({"local", "share", "share/deeper"});
    box.Write(box.File("local"), "lock int Snap = 1\n");
    box.Write(box.File("share"), "lock int Ruler = 1\n");
    box.Write(box.File("share/deeper"), "lock Dim*\n");
    box.Reopen();
    FaultyDisk::isShareStuck = true;
    const auto start = std::chrono::steady_clock::now();
    KivSettingRepository& repository = box.Reopen();
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took, std::chrono::milliseconds(1900)) << "one after the other";
    const int other = 7;
    for (const char* key : {"Ruler", "DimA", "Snap"})
        EXPECT_EQ(repository.WriteSetting(key, &other, 1, 0), E_FAIL);
    EXPECT_EQ(box.Read(repository, "Ruler", 0), 1);
    EXPECT_EQ(box.Said("does not answer in time; this machine's copy"), 2);
    // The next looks do not wait for it again, nor say it again.
    for (int i = 0; i < 5; ++i) EXPECT_TRUE(repository.Refresh().empty());
    EXPECT_EQ(FaultyDisk::stuck, 2);
    EXPECT_EQ(box.Said("does not answer in time"), 2);
    FaultyDisk::isShareStuck = false;
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    box.Write(box.File("share"), "lock int Ruler = 5\n");
    EXPECT_EQ(repository.Refresh().size(), 1U);
    EXPECT_EQ(box.Read(repository, "Ruler", 0), 5);
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

// What a receipt says is what a power failure would leave.
TEST(Noise, EveryFaultOfASaveHasItsReceipt)
{
    using Receipt = KivSettingRepository::Receipt;
    KivSettingsSandbox box;
    box.Write(box.File("user"), "int Ruler = 1\n");
    KivSettingRepository& repository = box.Reopen();
    int value = 2;
    const auto save = [&](FaultyDisk::Fault fault, int change = 1) {
        value += change;
        repository.WriteSetting("Ruler", &value, 1, 0);
        FaultyDisk::fault = fault;
        const HRESULT result = repository.SaveRepository(nullptr);
        FaultyDisk::fault = FaultyDisk::Fault::None;
        EXPECT_EQ(result == S_OK, repository.LastReceipt() != Receipt::Refused);
        EXPECT_EQ(box.Read(repository, "Ruler", 0), value) << "nothing in memory is lost";
        EXPECT_EQ(box.Names("user").size(), 1U) << "no litter";
        return repository.LastReceipt();
    };
    const auto onDisk = [&] { return box.Saved(box.File("user")); };
    EXPECT_EQ(save(FaultyDisk::Fault::FlushFile), Receipt::Refused);
    EXPECT_EQ(save(FaultyDisk::Fault::Write), Receipt::Refused);
    EXPECT_EQ(save(FaultyDisk::Fault::Rename), Receipt::Refused);
    EXPECT_EQ(box.Bytes(box.File("user")), "int Ruler = 1\n");
    EXPECT_EQ(save(FaultyDisk::Fault::FlushDirectory), Receipt::Visible);
    EXPECT_EQ(onDisk(), "int Ruler = 6\n");
    EXPECT_EQ(save(FaultyDisk::Fault::FlushDirectory, 0), Receipt::Visible) << "the flush is still owed";
    EXPECT_EQ(save(FaultyDisk::Fault::None, 0), Receipt::Nothing);
    EXPECT_EQ(save(FaultyDisk::Fault::FlushDirectory, 0), Receipt::Nothing) << "it has been paid";
    EXPECT_EQ(save(FaultyDisk::Fault::ShortWrites), Receipt::Durable);
    EXPECT_EQ(onDisk(), "int Ruler = 7\n");
    EXPECT_EQ(save(FaultyDisk::Fault::Interrupts), Receipt::Durable);
    box.Write(box.File("user"), "int Ruler = 9\n"); // has to be read
    EXPECT_EQ(save(FaultyDisk::Fault::Interrupts), Receipt::Nothing);
    for (const char* words : {"cannot be written: No space left", "cannot be replaced: Input/output error"})
        EXPECT_EQ(box.Said(words), 1) << words;
    EXPECT_EQ(box.Said("directory cannot be flushed"), 1);

    // Descriptors run out: what is begun is ended. Nothing that could be closed in between is open.
    std::filesystem::remove(box.File("user"));
    struct rlimit usual {};
    getrlimit(RLIMIT_NOFILE, &usual);
    Receipt receipt = Receipt::Refused;
    for (rlim_t free = 0; receipt == Receipt::Refused; ++free) {
        const std::string before = onDisk();
        const int next = dup(STDIN_FILENO);
        close(next);
        const struct rlimit few {
            static_cast<rlim_t>(next) + free, usual.rlim_max
        };
        setrlimit(RLIMIT_NOFILE, &few);
        ++value;
        repository.WriteSetting("Ruler", &value, 1, 0);
        repository.SaveRepository(nullptr);
        setrlimit(RLIMIT_NOFILE, &usual);
        receipt = repository.LastReceipt();
        EXPECT_EQ(onDisk() == before, receipt == Receipt::Refused) << free;
    }
    EXPECT_EQ(receipt, Receipt::Durable);
}

} // namespace

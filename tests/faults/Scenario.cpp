#include "Scenario.h"

#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

using namespace Faults;

const std::vector<Fault> kFaults = {
    {.name = "input/output error", .calls = Any, .effect = Effect::Error, .error = EIO},
    {.name = "full disk",
     .calls = Create | Write | Flush | Rename | Directory,
     .effect = Effect::Error,
     .error = ENOSPC,
     .lasts = true},
    {.name = "short transfers",
     .calls = Read | Write,
     .effect = Effect::Half,
     .lasts = true,
     .isHarmless = true},
    {.name = "one signal",
     .calls = Open | Create | Read | Write | Flush | Rename | Lock,
     .effect = Effect::Error,
     .error = EINTR,
     .isHarmless = true},
    {.name = "early end", .calls = Read, .effect = Effect::End, .isHarmless = true},
    {.name = "no descriptors",
     .calls = Open | Create,
     .effect = Effect::Error,
     .error = EMFILE,
     .lasts = true},
    {.name = "crash", .calls = Any, .effect = Effect::Crash},
    {.name = "crash within a write", .calls = Write, .effect = Effect::Torn},
};

const std::vector<Scenario> kScenarios = {
    {.name = "own file", .own = "# kivsettings 1\nint Kept = 1\nint Changed = 1\n"},
    {.name = "first start", .own = nullptr, .isFirst = true},
    {.name = "damaged file", .own = "int Kept = 1\nint Changed = 1\nnoise\n", .isDamaged = true},
    {.name = "link", .own = "int Kept = 1\nint Changed = 1\n", .isLink = true},
    {.name = "news of layers", .own = "int Kept = 1\nint Changed = 1\n", .hasNews = true},
    {.name = "edited layer", .own = "# kivsettings 1\nint Kept = 1\nlock int Changed = 1\n", .isLayer = true},
};

bool IsLong()
{
    return std::getenv("KIV_FAULTS_LONG") != nullptr;
}

Tree TreeOf(const std::filesystem::path& root)
{
    Tree tree;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        struct stat status {};
        lstat(entry.path().c_str(), &status);
        if (S_ISDIR(status.st_mode)) continue;
        std::ostringstream text;
        text << std::oct << status.st_mode << ' ' << status.st_uid << '\n';
        text << (entry.is_symlink() ? std::filesystem::read_symlink(entry.path()).string()
                                    : KivSettingsSandbox::Bytes(entry.path()));
        tree[entry.path().lexically_relative(root).string()] = text.str();
    }
    return tree;
}

void Scenario::Prepare(KivSettingsSandbox& box) const
{
    if (isFirst) return std::filesystem::remove_all(box.root / "user"), void();
    const std::string locks = "# kivsettings 1\nlock int Locked = 1\nlock Dim*\n";
    box.NameLayers({"company", "site"});
    box.Write(box.File("company"), locks);
    box.Write(box.File("site"), isLayer ? own : "int Given = 3\n");
    if (!isLayer) box.Write(isLink ? box.root / "store/real" : box.File("user"), own);
    if (isLink) {
        std::filesystem::create_symlink("../store/real", box.File("user"));
        chmod((box.root / "store/real").c_str(), 0640);
        if (geteuid() == 0 && chown((box.root / "store/real").c_str(), 65534, 65534) != 0) std::abort();
    }
    box.Reopen(); // which makes the copies
    if (!hasNews) return;
    box.NameLayers({"company", "site", "team"});
    box.Write(box.File("company"), locks + "int Given = 4\n");
    box.Write(box.File("team"), "lock Other\n");
}

std::string Scenario::Target() const
{
    if (isLink) return "store/real";
    return std::string(isLayer ? "site" : "user") + "/DraftingOptions.kivsettings";
}

KivSettingRepository& Scenario::Act(KivSettingsSandbox& box, const std::function<void()>& beforeSave) const
{
    KivSettingRepository::SetEditedLayer(isLayer ? KivUnicodeString((box.root / "site").string())
                                                 : KivUnicodeString());
    KivSettingRepository& repository = box.Reopen();
    const int value = 2;
    for (const char* key : {"Changed", "Fresh"}) repository.WriteSetting(key, &value, 1, 0);
    if (isLayer) repository.SetLock("Fresh", true);
    if (beforeSave) beforeSave();
    repository.SaveRepository(nullptr);
    return repository;
}

std::string OpenLocks(const KivSettingRepository& repository)
{
    KivSettingInfo info;
    int value = 0;
    for (const char* key : {"Locked", "DimA"}) {
        info = {};
        repository.GetInfo(key, &info, 0);
        if (!info.locked) return std::string(key) + " is open";
    }
    if (repository.ReadSetting("Locked", &value, 1) != S_OK || value != 1) return "Locked has another value";
    return {};
}

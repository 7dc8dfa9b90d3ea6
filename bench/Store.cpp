#include "KivDrwCatalogue.h"
#include "KivDrwSettingAccess.h"
#include "Ratio.h"
#include "Support/KivSettingsSandbox.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Values = std::vector<std::pair<std::string, KivSettingValue>>;

Values CatalogueValues()
{
    Values values;
    for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries())
        values.emplace_back(entry.key, entry.makeDefault());
    return values;
}

Values ManyValues()
{
    Values values;
    for (int i = 0; i < 100'000; ++i) {
        const std::string key = "Part_" + std::to_string(i) + "_Option";
        if (i % 4 == 0) values.emplace_back(key, 0.25 * i);
        if (i % 4 == 1) values.emplace_back(key, KivUnicodeString("value of " + key));
        if (i % 4 > 1) values.emplace_back(key, i);
    }
    return values;
}

// The user's settings file with all of the values, written by the store itself.
KivSettingRepository& Fill(const Values& values)
{
    KivSettingRepository& repository = KivSettingsSandbox::Reopen();
    for (const auto& [key, value] : values) repository.WriteSetting(key.c_str(), &value, 1, 0);
    if (repository.SaveRepository(nullptr) != S_OK) std::abort();
    return repository;
}

// The good hash look-up: open addressing over keys whose length is known, no deletion, a hash of three loads.
class FlatTable {
public:
    explicit FlatTable(const Values& values) : _slots(std::bit_ceil(4 * values.size()))
    {
        for (const auto& [key, value] : values) {
            std::size_t at = Hash(key) & (_slots.size() - 1);
            while (!_slots[at].key.empty()) at = (at + 1) & (_slots.size() - 1);
            _slots[at] = {key, value};
        }
    }
    KivSettingValue* Find(std::string_view key)
    {
        for (std::size_t at = Hash(key) & (_slots.size() - 1);; at = (at + 1) & (_slots.size() - 1)) {
            if (_slots[at].key == key) return &_slots[at].value;
            if (_slots[at].key.empty()) return nullptr;
        }
    }

private:
    struct Slot {
        std::string_view key;
        KivSettingValue value;
    };
    static std::size_t Hash(std::string_view key)
    {
        std::uint64_t first = 0, last = 0;
        const std::size_t size = std::min<std::size_t>(key.size(), 8);
        std::memcpy(&first, key.data(), size);
        std::memcpy(&last, key.data() + key.size() - size, size);
        const std::uint64_t mixed = (first ^ (last * 0x9e3779b97f4a7c15U) ^ key.size()) * 0xff51afd7ed558ccdU;
        return mixed >> 32;
    }

    std::vector<Slot> _slots;
};

constexpr const char* kKey = "Drw_settings_GridPrimarySpacing"; // of a double; one of the longer ones

// Does something with the filled repository again and again.
template <class Do> KivRatio::Measured WithRepository(Do act)
{
    return [act](benchmark::State& state) {
        KivSettingsSandbox box;
        KivSettingRepository& repository = Fill(CatalogueValues());
        double value = 0.0;
        for (auto _ : state) {
            benchmark::DoNotOptimize(value);
            benchmark::DoNotOptimize(act(repository, value));
        }
    };
}

HRESULT Read(const KivSettingRepository& repository, double& value)
{
    return repository.ReadSetting(kKey, &value, 1);
}

bool AskLock(const KivSettingRepository& repository, double&)
{
    KivSettingProvenance provenance;
    repository.GetProvenance(kKey, provenance);
    return provenance.locked;
}

HRESULT Write(KivSettingRepository& repository, double& value)
{
    value += 1.0;
    return repository.WriteSetting(kKey, &value, 1, 0);
}

void LookUp(benchmark::State& state)
{
    const Values values = CatalogueValues();
    FlatTable table(values);
    std::string_view key = kKey;
    double value = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(key);
        value = std::get<double>(*table.Find(key));
        benchmark::DoNotOptimize(value);
    }
}

// A flat image: of each setting the lengths of its name and its text, its type, the name, and the bytes of
// the number or the text.
struct ImageRecord {
    std::uint16_t nameLength = 0;
    std::uint16_t textLength = 0;
    std::uint32_t type = 0;
};

template <class T> void AppendBytes(std::string& image, const T& plain)
{
    image.append(reinterpret_cast<const char*>(&plain), sizeof plain);
}

template <class T> T TakeBytes(const char*& at)
{
    T plain{};
    std::memcpy(&plain, at, sizeof plain);
    at += sizeof plain;
    return plain;
}

std::string Image(const Values& values)
{
    std::string image;
    for (const auto& [key, value] : values) {
        const auto* const text = std::get_if<KivUnicodeString>(&value);
        AppendBytes(image, ImageRecord{static_cast<std::uint16_t>(key.size()),
                                       static_cast<std::uint16_t>(text ? text->View().size() : 0),
                                       static_cast<std::uint32_t>(value.index())});
        image += key;
        if (const auto* number = std::get_if<int>(&value)) AppendBytes(image, *number);
        if (const auto* number = std::get_if<unsigned int>(&value)) AppendBytes(image, *number);
        if (const auto* number = std::get_if<float>(&value)) AppendBytes(image, *number);
        if (const auto* number = std::get_if<double>(&value)) AppendBytes(image, *number);
        if (text) image += text->View();
    }
    return image;
}

// What reading settings takes at least, whatever the format: the file comes in one piece, numbers stand there
// as the machine has them, and since the records stand in the order in which they are asked for, comparing
// the names is all the looking up there is.
void ReadImage(const std::string& path, const Values& wanted, std::vector<KivSettingValue>& values)
{
    const int handle = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    fstat(handle, &status);
    std::string image(static_cast<std::size_t>(status.st_size), '\0');
    if (read(handle, image.data(), image.size()) != status.st_size) std::abort();
    close(handle);
    const char* at = image.data();
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const auto record = TakeBytes<ImageRecord>(at);
        if (std::string_view(at, record.nameLength) != wanted[i].first) std::abort();
        at += record.nameLength;
        if (record.type == 1) values[i] = TakeBytes<int>(at);
        if (record.type == 2) values[i] = TakeBytes<unsigned int>(at);
        if (record.type == 3) values[i] = TakeBytes<float>(at);
        if (record.type == 4) values[i] = TakeBytes<double>(at);
        if (record.type == 5) values[i] = KivUnicodeString(std::string_view(at, record.textLength));
        at += record.textLength;
    }
}

// Opens the user's file, and the layer's where there is one, and reads every value.
template <Values (*make)()> void Open(benchmark::State& state, bool hasLayer)
{
    KivSettingsSandbox box;
    const Values values = make();
    Fill(values);
    if (hasLayer) {
        KivSettingsSandbox::Write(box.File("site"),
                                  "# kivsettings 1\nlock int Ruler = 1\ndouble RotSnapAngle = 5\n");
        box.NameLayers({"site"});
    }
    std::vector<KivSettingValue> read(values.size());
    KivSettingsSandbox::Reopen(); // the first time keeps a copy of the layer
    for (auto _ : state) {
        KivSettingRepository& repository = KivSettingsSandbox::Reopen();
        for (std::size_t i = 0; i < values.size(); ++i)
            repository.ReadSetting(values[i].first.c_str(), &read[i], 1);
    }
}

template <Values (*make)()> void BareOpen(benchmark::State& state)
{
    KivSettingsSandbox box;
    const std::string path = (box.root / "image").string();
    const Values values = make();
    KivSettingsSandbox::Write(path, Image(values));
    std::vector<KivSettingValue> read(values.size());
    for (auto _ : state) ReadImage(path, values, read);
}

template <Values (*make)()> void Save(benchmark::State& state)
{
    KivSettingsSandbox box;
    const Values values = make();
    KivSettingRepository& repository = Fill(values);
    int value = 0;
    for (auto _ : state) {
        value = 1 - value;
        repository.WriteSetting("Ruler", &value, 1, 0);
        repository.SaveRepository(nullptr);
        if (repository.LastReceipt() != KivSettingRepository::Receipt::Durable)
            state.SkipWithError("not saved");
    }
}

template <Values (*make)()> void BareSave(benchmark::State& state)
{
    KivSettingsSandbox box;
    Fill(make());
    const std::string bytes = KivSettingsSandbox::Bytes(box.File("user"));
    const std::string directory = (box.root / "user").string(), file = directory + "/bare",
                      temporary = file + ".tmp";
    for (auto _ : state) {
        const int handle = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        const bool written = write(handle, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
        if (!written || fsync(handle) != 0) state.SkipWithError("not written");
        close(handle);
        rename(temporary.c_str(), file.c_str());
        const int parent = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        fsync(parent);
        close(parent);
    }
}

// Starts a program with these arguments and waits for its end.
KivRatio::Measured Process(std::string program, std::vector<std::string> arguments)
{
    return [program, arguments](benchmark::State& state) {
        KivSettingsSandbox box;
        Fill(CatalogueValues());
        std::vector<char*> argv{const_cast<char*>(program.c_str())};
        for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
        argv.push_back(nullptr);
        posix_spawn_file_actions_t silent;
        posix_spawn_file_actions_init(&silent);
        posix_spawn_file_actions_addopen(&silent, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        for (auto _ : state) {
            pid_t child = 0;
            int status = 0;
            if (posix_spawn(&child, program.c_str(), &silent, nullptr, argv.data(), environ) != 0 ||
                waitpid(child, &status, 0) != child || status != 0)
                state.SkipWithError("the program failed");
        }
        posix_spawn_file_actions_destroy(&silent);
    };
}

} // namespace

int main(int argc, char** argv)
{
    const std::string programs = std::filesystem::canonical("/proc/self/exe").parent_path().string() + "/";
    KivRatio::Add("read by name / look-up", 2.0, WithRepository(&Read), &LookUp);
    KivRatio::Add("lock state by name / look-up", 2.0, WithRepository(&AskLock), &LookUp);
    KivRatio::Add("write in memory / look-up", 5.0, WithRepository(&Write), &LookUp);
    KivRatio::Add(
        "open two files, read 218 / flat image", 8.0,
        [](benchmark::State& state) { Open<&CatalogueValues>(state, true); }, &BareOpen<&CatalogueValues>);
    KivRatio::Add(
        "open and read 100,000 / flat image", 6.0,
        [](benchmark::State& state) { Open<&ManyValues>(state, false); }, &BareOpen<&ManyValues>);
    KivRatio::Add("save one change of 218 / write, flush, rename, flush", 1.15, &Save<&CatalogueValues>,
                  &BareSave<&CatalogueValues>);
    KivRatio::Add("save one change of 100,000 / the same", 2.0, &Save<&ManyValues>, &BareSave<&ManyValues>);
    KivRatio::Add("kivsettings get / an empty program", 1.1, Process(programs + "kivsettings", {"get", kKey}),
                  Process(programs + "bench_nothing", {}));
    return KivRatio::Run(argc, argv);
}

#include "Component/KivLibrary.h"
#include "KivDrwCatalogue.h"
#include "KivDrwRepository.h"
#include "Options/KivOptionsSession.h"
#include "Ratio.h"
#include "Support/KivSettingsSandbox.h"

#include <fcntl.h>
#include <string_view>
#include <unistd.h>
#include <unordered_map>

namespace {

// The barest store: one hash table of the same keys.
struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>{}(key); }
};
using Table = std::unordered_map<std::string, KivSettingValue, Hash, std::equal_to<>>;

Table BareTable()
{
    Table table;
    for (const KivDrwRow& row : KivDrwCatalogue::Rows()) table.emplace(row.key, row.makeDefault());
    return table;
}

std::vector<KivSettingValue> BareValues()
{
    std::vector<KivSettingValue> values;
    for (const KivDrwRow& row : KivDrwCatalogue::Rows()) values.push_back(row.makeDefault());
    return values;
}

// A settings file with every key in it.
void FillFile(KivSettingsSandbox& box)
{
    KivSettingRepository::ForgetAll();
    ResetAndWriteSettings(1);
    KivDrwRepository()->SaveRepository(nullptr);
    if (!std::filesystem::exists(box.File("user"))) std::abort();
}

// Reads one setting of the filled repository again and again.
template <class T, class Read> KivRatio::Measured FromRepository(Read read)
{
    return [read](benchmark::State& state) {
        KivSettingsSandbox box;
        FillFile(box);
        const KivSettingRepository* repository = KivDrwRepository();
        T value{};
        for (auto _ : state) {
            benchmark::DoNotOptimize(read(*repository, value));
            benchmark::DoNotOptimize(value);
        }
    };
}

// Takes one value out of a bare container again and again.
template <class T, class Make, class Where, class Take>
KivRatio::Measured FromContainer(Make make, Where where, Take take)
{
    return [make, where, take](benchmark::State& state) {
        const auto container = make();
        Where wanted = where;
        T value{};
        for (auto _ : state) {
            benchmark::DoNotOptimize(wanted);
            value = std::get<T>(take(container, wanted));
            benchmark::DoNotOptimize(value);
        }
    };
}

template <class T> void AddRead(const std::string& name, const KivDrwKey<T>& key)
{
    KivRatio::Add(name, 2.0, FromRepository<T>([&key](const KivSettingRepository& repository, T& value) {
                      return repository.ReadSetting(key.name, &value, 1);
                  }),
                  FromContainer<T>(
                      &BareTable, key.name, [](const Table& table, const char* wanted) -> const auto& {
                          return table.find(std::string_view(wanted))->second;
                      }));
}

// By the place that is known when the program is built, against one load from an array of values.
template <class T> void AddReadByKey(const std::string& name, const KivDrwKey<T>& key)
{
    KivRatio::Add(name, 3.0, FromRepository<T>([&key](const KivSettingRepository& repository, T& value) {
                      return repository.ReadBound(kKivDrwKeyNames, key.place, &value);
                  }),
                  FromContainer<T>(
                      &BareValues, key.place,
                      [](const std::vector<KivSettingValue>& values, std::size_t place) -> const auto& {
                          return values[place];
                      }));
}

void Locker(benchmark::State& state)
{
    KivSettingsSandbox box;
    FillFile(box);
    const KivSettingRepository* repository = KivDrwRepository();
    KivSettingProvenance place;
    for (auto _ : state) {
        benchmark::DoNotOptimize(repository->GetProvenance(KivDrwKeys::RotSnapAngle.name, place));
        benchmark::DoNotOptimize(place);
    }
}

void BareLocker(benchmark::State& state)
{
    KivSettingsSandbox box;
    FillFile(box);
    const KivSettingRepository* repository = KivDrwRepository();
    double value = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(repository->ReadSetting(KivDrwKeys::RotSnapAngle.name, &value, 1));
        benchmark::DoNotOptimize(value);
    }
}

void ReadAllKeys(const KivSettingRepository& repository, std::vector<KivSettingValue>& values)
{
    std::size_t i = 0;
    for (const KivDrwRow& row : KivDrwCatalogue::Rows()) repository.ReadSetting(row.key, &values[i++], 1);
}

void Open(benchmark::State& state)
{
    KivSettingsSandbox box;
    FillFile(box);
    std::vector<KivSettingValue> values = BareValues();
    for (auto _ : state) {
        KivSettingRepository::ForgetAll();
        ReadAllKeys(*KivDrwRepository(), values);
    }
}

void BareOpen(benchmark::State& state)
{
    KivSettingsSandbox box;
    FillFile(box);
    const std::string file = box.File("user").string();
    for (auto _ : state) {
        std::ifstream stream(file, std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(stream, line);) lines.push_back(line);
        benchmark::DoNotOptimize(lines);
    }
}

void WriteAll(benchmark::State& state)
{
    KivSettingsSandbox box;
    FillFile(box);
    for (auto _ : state) benchmark::DoNotOptimize(ResetAndWriteSettings(1));
}

void BareWriteAll(benchmark::State& state)
{
    Table table = BareTable();
    for (auto _ : state) {
        for (const KivDrwRow& row : KivDrwCatalogue::Rows()) {
            const KivSettingValue value = table.find(std::string_view(row.key))->second;
            table.find(std::string_view(row.key))->second = value;
        }
    }
}

void Save(benchmark::State& state)
{
    KivSettingsSandbox box;
    FillFile(box);
    KivSettingRepository* repository = KivDrwRepository();
    int value = 0;
    for (auto _ : state) {
        value = 1 - value;
        repository->WriteSetting(KivDrwKeys::Ruler.name, &value, 1, 0);
        repository->SaveRepository(nullptr);
        if (repository->LastReceipt() != KivSettingRepository::Receipt::Durable)
            state.SkipWithError("not saved");
    }
}

void BareSave(benchmark::State& state)
{
    KivSettingsSandbox box;
    FillFile(box);
    const std::string bytes = box.Bytes(box.File("user"));
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

long Nodes(const KivDialog& node)
{
    long count = 1;
    for (const KivDialog* child : node.Children()) count += Nodes(*child);
    return count;
}

void LoadPages()
{
    for (const char* library : {KIV_COMPONENT_LIBRARIES}) KivLoadLibrary(library);
}

void BuildPages(benchmark::State& state)
{
    KivSettingsSandbox box;
    FillFile(box);
    LoadPages();
    KivUserSettingsManager manager;
    for (auto _ : state) {
        const KivOptionsSession session(manager);
        if (session.Pages().empty()) state.SkipWithError("no pages");
    }
}

// As many objects as the pages have nodes, each with a name, a title and a list of children, in one tree.
struct BareNode {
    std::string name, title;
    std::vector<std::unique_ptr<BareNode>> children;
};

void BareBuildPages(benchmark::State& state)
{
    KivSettingsSandbox box;
    LoadPages();
    KivUserSettingsManager manager;
    const long nodes = [&] {
        KivOptionsSession session(manager);
        return Nodes(session.Root());
    }();
    for (auto _ : state) {
        BareNode root;
        for (long i = 0; i < nodes; ++i) {
            auto node = std::make_unique<BareNode>();
            node->name = "editorGridGraduationV_dialog";
            node->title = "Graduations, vertical";
            root.children.push_back(std::move(node));
        }
        benchmark::DoNotOptimize(root);
    }
}

} // namespace

int main(int argc, char** argv)
{
    AddRead("read one int", KivDrwKeys::Drw_settings_GridSecondaryStep);
    AddRead("read one double", KivDrwKeys::Drw_settings_GridPrimarySpacing);
    AddRead("read one string", KivDrwKeys::DrwGVSXmlTrel);
    AddReadByKey("read one int by its place / array load", KivDrwKeys::Drw_settings_GridSecondaryStep);
    AddReadByKey("read one double by its place / array load", KivDrwKeys::Drw_settings_GridPrimarySpacing);
    AddReadByKey("read one string by its place / array load", KivDrwKeys::DrwGVSXmlTrel);
    KivRatio::Add("origin and lock of one key / read it", 1.5, &Locker, &BareLocker);
    KivRatio::Add("open 218 keys and read all / bytes into lines", 3.0, &Open, &BareOpen);
    KivRatio::Add("ResetAndWriteSettings(1) / 218 hash look-ups twice", 10.0, &WriteAll, &BareWriteAll);
    KivRatio::Add("save after one change / write, flush, rename, flush", 1.15, &Save, &BareSave);
    KivRatio::Add("open all pages in the tree / as many nodes", 30.0, &BuildPages, &BareBuildPages);
    return KivRatio::Run(argc, argv);
}

#include "Component/KivLibrary.h"
#include "KivDrwCatalogue.h"
#include "KivDrwSettingAccess.h"
#include "Options/KivOptionsSession.h"
#include "Ratio.h"
#include "Support/KivSettingsSandbox.h"

#include <string_view>
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
    for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries())
        table.emplace(entry.key, entry.makeDefault());
    return table;
}

std::vector<KivSettingValue> BareValues()
{
    std::vector<KivSettingValue> values;
    for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries())
        values.push_back(entry.makeDefault());
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

// By the place that is known when the program is built, against one load from an array of values.
template <class T> void AddReadByKey(const std::string& name, const KivDrwKey<T>& key)
{
    KivRatio::Add(name, 3.0, FromRepository<T>([&key](const KivSettingRepository& repository, T& value) {
                      return repository.ReadBound(kKivDrwKeyNames, key.index, &value);
                  }),
                  FromContainer<T>(
                      &BareValues, key.index,
                      [](const std::vector<KivSettingValue>& values, std::size_t place) -> const auto& {
                          return values[place];
                      }));
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
        for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries()) {
            const KivSettingValue value = table.find(std::string_view(entry.key))->second;
            table.find(std::string_view(entry.key))->second = value;
        }
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
    AddReadByKey("read one int by its place / array load", KivDrwKeys::Drw_settings_GridSecondaryStep);
    AddReadByKey("read one double by its place / array load", KivDrwKeys::Drw_settings_GridPrimarySpacing);
    AddReadByKey("read one string by its place / array load", KivDrwKeys::DrwGVSXmlTrel);
    KivRatio::Add("ResetAndWriteSettings(1) / 218 hash look-ups twice", 10.0, &WriteAll, &BareWriteAll);
    KivRatio::Add("open all pages in the tree / as many nodes", 30.0, &BuildPages, &BareBuildPages);
    return KivRatio::Run(argc, argv);
}

#include "KivDrwCatalogue.h"
#include "KivDrwDefaults.h"
#include "KivDrwSettingAccess.h"
#include "KivDrwWorkbench.h"

#include <string_view>
#include <vector>

namespace {

std::size_t IndexOf(std::span<const KivDrwCatalogueEntry> entries, std::string_view key)
{
    std::size_t index = 0;
    while (entries[index].key != key) ++index;
    return index;
}

} // namespace

int ResetAndWriteSettings(unsigned char write)
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository || !KivDrwSketcherSettings::GetSketcherSettings()) return 0;
    for (const KivDrwGroup group : KivDrwCatalogue::Groups()) {
        const auto entries = KivDrwCatalogue::Entries(group);
        std::vector<KivSettingValue> values;
        values.reserve(entries.size());
        for (const KivDrwCatalogueEntry& entry : entries) values.push_back(entry.makeDefault());
        for (std::size_t i = 0; i < entries.size(); ++i)
            repository->ReadSetting(entries[i].key, &values[i], 1);
        if (!write) continue;
        for (const KivDrwCatalogueEntry& entry : entries)
            repository->WriteSetting(entry.key, &values[IndexOf(entries, entry.writtenFrom)], 1, 0);
    }
    return 1;
}

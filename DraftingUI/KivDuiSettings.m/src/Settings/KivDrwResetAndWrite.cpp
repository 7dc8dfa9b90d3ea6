#include "KivDrwCatalogue.h"
#include "KivDrwDefaults.h"
#include "KivDrwRepository.h"
#include "KivDrwSketcherSettings.h"

#include <string_view>
#include <vector>

namespace {

std::size_t IndexOf(std::span<const KivDrwRow> rows, std::string_view key)
{
    std::size_t index = 0;
    while (rows[index].key != key) ++index;
    return index;
}

} // namespace

int ResetAndWriteSettings(unsigned char write)
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository || !KivDrwSketcherSettings::GetSketcherSettings()) return 0;
    for (const KivDrwGroup group : KivDrwCatalogue::Groups()) {
        const auto rows = KivDrwCatalogue::Rows(group);
        std::vector<KivSettingValue> values;
        values.reserve(rows.size());
        for (const KivDrwRow& row : rows) values.push_back(row.makeDefault());
        for (std::size_t i = 0; i < rows.size(); ++i) repository->ReadSetting(rows[i].key, &values[i], 1);
        if (!write) continue;
        for (const KivDrwRow& row : rows)
            repository->WriteSetting(row.key, &values[IndexOf(rows, row.writtenFrom)], 1, 0);
    }
    return 1;
}

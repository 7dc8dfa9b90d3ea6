#include "SettingListing.h"

#include "ValueText.h"

#include <algorithm>
#include <array>

namespace {

using Row = std::array<std::string, 7>;

std::string OriginOf(const Setting& setting)
{
    switch (setting.info.origin) {
    case KivSettingInfo::Origin::None:
        return "default";
    case KivSettingInfo::Origin::User:
        return setting.info.initial ? "initial" : "user";
    case KivSettingInfo::Origin::Administrator:
        break;
    }
    return std::string(setting.info.layer.View());
}

Row RowOf(const Setting& setting)
{
    const char* const page = setting.Page();
    return {setting.key,
            setting.TypeWord(),
            ShownValue(setting.value),
            KivHasValue(setting.fallback) ? ShownValue(setting.fallback) : "-",
            OriginOf(setting),
            LockOf(setting),
            page[0] ? page : "-"};
}

} // namespace

std::string LockOf(const Setting& setting)
{
    return setting.IsLocked() ? std::string(setting.info.lockLayer.View()) : "-";
}

std::string SettingsAsTable(const std::vector<Setting>& settings, bool isAligned)
{
    std::vector<Row> rows;
    if (isAligned) rows.push_back({"KEY", "TYPE", "VALUE", "DEFAULT", "ORIGIN", "LOCK", "PAGE"});
    for (const Setting& setting : settings) rows.push_back(RowOf(setting));
    std::array<std::size_t, 7> widths{};
    for (const Row& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    std::string text;
    for (const Row& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            text += row[i];
            if (i + 1 == row.size())
                text += '\n';
            else if (isAligned)
                text.append(widths[i] + 2 - row[i].size(), ' ');
            else
                text += '\t';
        }
    }
    return text;
}

JsonObject SettingAsJson(const Setting& setting)
{
    const KivSettingInfo& info = setting.info;
    JsonObject object;
    object.Add("key", setting.key).Add("type", setting.TypeWord()).Add("value", setting.value);
    object.Add("default", setting.fallback);
    if (setting.entry) {
        const KivSettingKind& kind = setting.entry->kind;
        object.Add("kind", kind.name);
        if (kind.HasRange()) {
            object.Add("minimum", KivSettingValue(kind.minimum))
                .Add("maximum", KivSettingValue(kind.maximum));
        }
    }
    constexpr const char* origins[] = {"default", "user", "administrator"}; // in the order of Origin
    object.Add("origin", origins[static_cast<std::size_t>(info.origin)]).Add("initial", info.initial);
    object.AddUnlessEmpty("layer", info.layer.View())
        .AddUnlessEmpty("file", info.file.View())
        .Add("line", info.line);
    object.Add("locked", setting.IsLocked()).AddUnlessEmpty("lockLayer", info.lockLayer.View());
    object.AddUnlessEmpty("lockFile", info.lockFile.View()).Add("lockLine", info.lockLine);
    return object.AddUnlessEmpty("page", setting.Page());
}

std::string SettingsAsJson(const std::vector<Setting>& settings)
{
    JsonArray array;
    std::string text;
    for (const Setting& setting : settings) text += array.Element(SettingAsJson(setting));
    return text + array.End();
}

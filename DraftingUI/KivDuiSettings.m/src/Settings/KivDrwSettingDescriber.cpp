#include "Settings/KivDrwSettingDescriber.h"

#include "Base/KivTextCatalogue.h"
#include "KivDrwCatalogue.h"
#include "Settings/KivSettingRepository.h"

#include <string>

namespace {

KivUnicodeString Number(double number)
{
    return KivShownSettingText(KivSettingValue(number));
}

KivUnicodeString Facts(const KivSettingInfo& info)
{
    const KivDrwCatalogueEntry* const entry = KivDrwCatalogue::Find(info.key.View());
    if (!entry) return KivUnicodeString(info.key);
    KivUnicodeString fallback = KivShownSettingText(entry->makeDefault());
    if (fallback.IsEmpty()) fallback = KivTextCatalogue::FrameworkText("SettingEmptyText");
    const KivSettingKind& kind = entry->kind;
    const KivTextCatalogue& texts = KivTextCatalogue::Open("DraftingUI");
    return KivTextCatalogue::Fill(texts.Text(kind.HasRange() ? "SettingFacts" : "SettingFactsText"),
                                  {KivUnicodeString(info.key), fallback, Number(kind.minimum),
                                   Number(kind.maximum), KivUnicodeString(kind.name)});
}

// As a shell takes it for one word.
std::string Quoted(std::string_view word)
{
    constexpr std::string_view plain =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_=.,:/+-";
    if (word.find_first_not_of(plain) == std::string_view::npos) return std::string(word);
    std::string quoted("'");
    for (const char c : word) c == '\'' ? quoted.append("'\\''") : quoted.append(1, c);
    return quoted + "'";
}

std::string Assignment(const KivSettingInfo& info)
{
    const KivDrwCatalogueEntry* const entry = KivDrwCatalogue::Find(info.key.View());
    KivSettingValue value = entry ? entry->makeDefault() : KivSettingValue();
    const KivSettingRepository* const repository =
        KivSettingRepository::GetRepository(info.repository.ConvertToChar());
    if (repository) repository->ReadSetting(info.key.ConvertToChar(), &value, 1);
    return " " + Quoted(std::string(info.key.View()) + "=" + std::string(KivShownSettingText(value).View()));
}

KivUnicodeString Command(const KivSettingInfo& info)
{
    std::string line("kivsettings set");
    const KivUnicodeString& layer = KivSettingRepository::EditedLayer();
    if (!layer.IsEmpty()) line += " --layer " + Quoted(layer.View());
    line += Assignment(info);
    for (const KivSettingInfo& companion : info.companions) line += Assignment(companion);
    return KivUnicodeString(line);
}

} // namespace

constinit const KivSettingDescriber KivDrwSettingDescriber{&Facts, &Command};

#include "Base/KivTextCatalogue.h"

#include "Base/KivDiagnostic.h"
#include "Base/KivEnvironment.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr const char* kEnglish = "English";

struct Catalogues {
    KivString language = kEnglish;
    fs::path root;
    std::map<KivString, KivTextCatalogue> open;
};

Catalogues& AllCatalogues()
{
    static auto& catalogues = *new Catalogues;
    if (catalogues.root.empty()) catalogues.root = fs::path(KivInstallRoot().View()) / "share" / "kiv";
    return catalogues;
}

// The modules' directories, in the order of their names.
std::vector<fs::path> Modules()
{
    std::vector<fs::path> modules;
    std::error_code failed;
    for (fs::directory_iterator entry(AllCatalogues().root, failed), end; !failed && entry != end;
         entry.increment(failed))
        modules.push_back(entry->path());
    std::sort(modules.begin(), modules.end());
    return modules;
}

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view kSpace = " \t\r";
    const std::size_t first = text.find_first_not_of(kSpace);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

// The text between quotation marks, its escapes resolved; none when the quotation is damaged.
std::optional<std::string> Unquoted(std::string_view quoted)
{
    if (quoted.size() < 2 || quoted.front() != '"' || quoted.back() != '"') return std::nullopt;
    quoted = quoted.substr(1, quoted.size() - 2);
    std::string text;
    for (std::size_t i = 0; i < quoted.size(); ++i) {
        if (quoted[i] == '"') return std::nullopt;
        if (quoted[i] != '\\') {
            text += quoted[i];
            continue;
        }
        if (++i == quoted.size()) return std::nullopt;
        text += quoted[i] == 'n' ? '\n' : quoted[i];
    }
    return text;
}

// Some values are names and numbers for programs.
bool IsForPeople(std::string_view key)
{
    return !key.ends_with(".Icon") && !key.ends_with(".Position") && !key.ends_with(".Direction");
}

bool IsPseudo(const KivString& language)
{
    return language == KivTextCatalogue::kPseudoLanguage || language == KivTextCatalogue::kMirroredLanguage;
}

KivUnicodeString Lengthened(const KivUnicodeString& text)
{
    // In words, so that what wraps can wrap.
    std::string longer = "[" + std::string(text.View()) + " ";
    const std::size_t wanted = text.View().size() * 14 / 10;
    for (std::size_t letter = 0; longer.size() < wanted; ++letter) longer += letter % 7 == 6 ? ' ' : '~';
    return KivUnicodeString(longer + "]");
}

} // namespace

const KivTextCatalogue& KivTextCatalogue::Open(const KivString& name)
{
    Catalogues& catalogues = AllCatalogues();
    const auto [entry, isNew] = catalogues.open.try_emplace(name);
    if (isNew) {
        // The user's language first: what it says, English does not replace.
        entry->second.Load(catalogues.language, name);
        if (catalogues.language != kEnglish) entry->second.Load(kEnglish, name);
        if (IsPseudo(catalogues.language)) {
            for (auto& [key, text] : entry->second._texts) {
                if (IsForPeople(key)) text = Lengthened(text);
            }
        }
        if (entry->second._texts.empty())
            KivReport({.text = "there are no texts of this name; the names of texts and controls are shown",
                       .file = KivUnicodeString(name) + ".texts"});
    }
    return entry->second;
}

KivUnicodeString KivTextCatalogue::Fill(const KivUnicodeString& text,
                                        std::initializer_list<KivUnicodeString> values)
{
    std::string filled;
    const std::string_view all = text.View();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const char digit = all[i] == '%' && i + 1 < all.size() ? all[i + 1] : '0';
        const auto index = static_cast<std::size_t>(digit - '1');
        if (digit < '1' || digit > '9' || index >= values.size()) {
            filled += all[i];
            continue;
        }
        filled += (values.begin() + index)->View();
        ++i;
    }
    return KivUnicodeString(std::move(filled));
}

KivUnicodeString KivTextCatalogue::FrameworkText(const char* key,
                                                 std::initializer_list<KivUnicodeString> values)
{
    const KivUnicodeString text = Open(kFramework).Find(key);
    if (!text.IsEmpty()) return Fill(text, values);
    KivUnicodeString bare(key);
    for (const KivUnicodeString& value : values) bare.Append(" ").Append(value);
    return bare;
}

bool KivTextCatalogue::IsRightToLeft()
{
    return AllCatalogues().language == kMirroredLanguage ||
           Open(kFramework).Find("Language.Direction") == "RightToLeft";
}

void KivTextCatalogue::SetLanguage(const KivString& language)
{
    AllCatalogues().language = language;
}

std::set<std::string> KivTextCatalogue::KnownLanguages()
{
    std::set<std::string> languages{kPseudoLanguage, kMirroredLanguage};
    for (const fs::path& module : Modules()) {
        std::error_code failed;
        for (fs::directory_iterator entry(module / "texts", failed), end; !failed && entry != end;
             entry.increment(failed)) {
            if (entry->is_directory(failed)) languages.insert(entry->path().filename().string());
        }
    }
    return languages;
}

void KivTextCatalogue::SetResourceRoot(const KivUnicodeString& directory)
{
    AllCatalogues().root = directory.View();
    AllCatalogues().open.clear();
}

KivUnicodeString KivTextCatalogue::FindResource(const KivUnicodeString& relative)
{
    std::error_code failed;
    for (const fs::path& module : Modules()) {
        if (fs::path file = module / relative.View(); fs::is_regular_file(file, failed))
            return KivUnicodeString(file.string());
    }
    return {};
}

KivUnicodeString KivTextCatalogue::Text(const KivString& key) const
{
    const KivUnicodeString text = Find(key);
    return text.IsEmpty() ? KivUnicodeString(key) : text;
}

KivUnicodeString KivTextCatalogue::Find(const KivString& key) const
{
    const auto found = _texts.find(std::string(key.View()));
    return found == _texts.end() ? KivUnicodeString() : found->second;
}

void KivTextCatalogue::Load(const KivString& language, const KivString& name)
{
    const KivUnicodeString file = FindResource(KivUnicodeString("texts/") + KivUnicodeString(language) + "/" +
                                               KivUnicodeString(name) + ".texts");
    if (!file.IsEmpty()) LoadFile(file);
}

void KivTextCatalogue::LoadFile(const KivUnicodeString& file)
{
    std::ifstream stream{std::string(file.View())};
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
        const std::string_view content = Trimmed(line);
        if (content.empty() || content.front() == '#') continue;
        const std::size_t sign = content.find('=');
        const std::string_view key = Trimmed(content.substr(0, sign));
        const auto text =
            sign == std::string_view::npos ? std::nullopt : Unquoted(Trimmed(content.substr(sign + 1)));
        if (key.empty() || !text) {
            KivReport({.text = "this line is no text; it should read: key = \"text\"",
                       .file = file,
                       .line = number});
            continue;
        }
        _texts.emplace(key, KivUnicodeString(*text));
    }
}

#include "Settings/KivSettingLayers.h"

#include "Base/KivDiagnostic.h"
#include "Base/KivEnvironment.h"
#include "Base/KivToken.h"
#include "Disk/KivFileContent.h"
#include "Settings/KivSettingLayerCopy.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace {

KivUnicodeString& SystemFile()
{
    static auto& path = *new KivUnicodeString("/etc/kiv/layers");
    return path;
}

void Add(std::vector<KivUnicodeString>& layers, const KivUnicodeString& directory)
{
    if (std::find(layers.begin(), layers.end(), directory) == layers.end()) layers.push_back(directory);
}

// The text of the system's file. One that cannot be read must not open the locks of its layers.
std::string SystemText()
{
    KivFileContent content = KivReadFile(SystemFile());
    switch (content.state) {
    case KivFileContent::State::Absent:
        return {};
    case KivFileContent::State::Read:
        KivSettingLayerCopy(SystemFile()).Keep(content.text);
        return std::move(content.text);
    case KivFileContent::State::Unreadable:
        break;
    }
    KivReport({KivDiagnostic::Severity::Error, content.reason, SystemFile(), 0, {}});
    std::string text;
    KivSettingLayerCopy(SystemFile()).Read(text);
    return text;
}

std::vector<KivUnicodeString> OfSystem()
{
    std::vector<KivUnicodeString> layers;
    const std::string text = SystemText();
    int number = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        std::string_view line = std::string_view(text).substr(begin, end - begin);
        begin = end + 1;
        ++number;
        constexpr std::string_view blanks = " \t\r";
        line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
        line = line.substr(0, line.find_last_not_of(blanks) + 1);
        if (line.empty() || line[0] == '#') continue;
        if (line[0] == '/') {
            Add(layers, KivSettingLayers::Absolute(line));
        } else {
            KivReport({KivDiagnostic::Severity::Warning,
                       "the line is no absolute path; it is not used",
                       SystemFile(),
                       number,
                       {}});
        }
    }
    return layers;
}

// A directory of the XDG base directories; they ask that a relative path is not used.
KivUnicodeString BaseDirectory(const char* variable, const char* belowHome)
{
    const auto absolute = [](const char* path) { return path && path[0] == '/'; };
    const char* const base = KivGetEnv(variable);
    if (absolute(base)) return KivSettingLayers::Absolute(std::string(base) + "/kiv");
    const char* const home = KivGetEnv("HOME");
    if (absolute(home)) return KivSettingLayers::Absolute(std::string(home) + belowHome);
    return {};
}

} // namespace

std::vector<KivUnicodeString> KivSettingLayers::Administrator()
{
    std::vector<KivUnicodeString> layers = OfSystem();
    if (!layers.empty()) return layers;
    const char* const chosen = KivGetEnv("KivAdminSettingsPath");
    if (!chosen) return layers;
    KivToken tokens{KivUnicodeString(chosen)};
    for (KivUnicodeString path = tokens.GetNextToken(":"); !path.IsEmpty(); path = tokens.GetNextToken(":")) {
        Add(layers, Absolute(path.View()));
    }
    return layers;
}

std::vector<KivUnicodeString> KivSettingLayers::Outside(const KivUnicodeString& edited)
{
    std::vector<KivUnicodeString> layers = Administrator();
    if (edited.IsEmpty()) return layers;
    const auto at = std::find(layers.begin(), layers.end(), edited);
    layers.erase(at == layers.end() ? layers.begin() : at, layers.end());
    return layers;
}

KivUnicodeString KivSettingLayers::FileIn(const KivUnicodeString& directory, std::string_view repository)
{
    KivUnicodeString path = directory;
    if (!path.IsEmpty()) path.Append("/");
    return path.Append(repository).Append(".kivsettings");
}

bool KivSettingLayers::AreEnforced()
{
    return !OfSystem().empty();
}

KivUnicodeString KivSettingLayers::User()
{
    const char* const chosen = KivGetEnv("KivUserSettingsPath");
    if (chosen && chosen[0]) return Absolute(chosen);
    return BaseDirectory("XDG_CONFIG_HOME", "/.config/kiv");
}

KivUnicodeString KivSettingLayers::Cache()
{
    return BaseDirectory("XDG_CACHE_HOME", "/.cache/kiv");
}

KivUnicodeString KivSettingLayers::NameOf(const KivUnicodeString& directory)
{
    const std::string_view path = directory.View();
    return KivUnicodeString(path.substr(path.rfind('/') + 1));
}

KivUnicodeString KivSettingLayers::Absolute(std::string_view path)
{
    const auto has = [path](std::string_view part) { return path.find(part) != std::string_view::npos; };
    const bool isPlain = path.size() > 1 && path[0] == '/' && path.back() != '/' && !has("//") && !has("/.");
    if (isPlain) return KivUnicodeString(path); // the usual case, without the cost of the general one
    std::error_code failed;
    std::string whole = std::filesystem::absolute(path, failed).lexically_normal().string();
    if (failed) return KivUnicodeString(path);
    while (whole.size() > 1 && whole.back() == '/') whole.pop_back();
    return KivUnicodeString(std::move(whole));
}

KivUnicodeString KivSettingLayers::SetSystemFile(const KivUnicodeString& path)
{
    return std::exchange(SystemFile(), path);
}

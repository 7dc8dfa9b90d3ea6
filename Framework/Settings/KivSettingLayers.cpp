#include "Settings/KivSettingLayers.h"

#include "Base/KivAccount.h"
#include "Base/KivEnvironment.h"

#include <filesystem>
#include <unistd.h>
#include <utility>

namespace {

constexpr const char* kSystemFile = "/etc/kiv/layers";

KivUnicodeString& ChosenSystemFile()
{
    static auto& path = *new KivUnicodeString(kSystemFile);
    return path;
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

KivUnicodeString KivSettingLayers::FileIn(const KivUnicodeString& directory, std::string_view repository)
{
    KivUnicodeString path = directory;
    if (!path.IsEmpty()) path.Append("/");
    return path.Append(repository).Append(".kivsettings");
}

KivUnicodeString KivSettingLayers::User()
{
    const char* const chosen = KivGetEnv("KivUserSettingsPath");
    if (chosen && chosen[0]) return Absolute(chosen);
    return BaseDirectory("XDG_CONFIG_HOME", "/.config/kiv");
}

KivUnicodeString KivSettingLayers::Cache(bool isEnforced)
{
    if (isEnforced && IsUsualSystemFile()) {
        if (geteuid() == 0) return "/var/cache/kiv";
        static const auto& home = *new KivUnicodeString(KivAccountHome());
        return home.IsEmpty() ? home : KivUnicodeString(home).Append("/.cache/kiv");
    }
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

KivUnicodeString KivSettingLayers::SystemFile()
{
    return ChosenSystemFile();
}

bool KivSettingLayers::IsUsualSystemFile()
{
    return SystemFile() == kSystemFile;
}

KivUnicodeString KivSettingLayers::SetSystemFile(const KivUnicodeString& path)
{
    return std::exchange(ChosenSystemFile(), path);
}

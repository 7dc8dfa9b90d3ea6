#pragma once

#include "Base/KivDiagnosticScope.h"
#include "Base/KivTextLines.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingRepository.h"
#include "Settings/KivSettingSeal.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

// Settings of its own for one test: a temporary directory with the user's settings, administrator layers and
// the cache, the environment that leads there, and the diagnostics that come. Everything is put back at the
// end.
class KivSettingsSandbox {
public:
    KivSettingsSandbox()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "kiv-settings-XXXXXX").string();
        if (!mkdtemp(pattern.data())) std::abort();
        root = pattern;
        std::filesystem::create_directories(root / "user");
        SetVariable("KivUserSettingsPath", (root / "user").string());
        SetVariable("KivAdminSettingsPath", {});
        SetVariable("XDG_CACHE_HOME", (root / "cache").string());
        SetVariable("XDG_CONFIG_HOME", {});
        SetVariable("HOME", (root / "home").string());
        _systemFile = KivSettingLayers::SetSystemFile(KivUnicodeString((root / "layers").string()));
        KivSettingRepository::ForgetAll();
    }
    ~KivSettingsSandbox()
    {
        KivSettingRepository::ForgetAll();
        KivSettingRepository::SetEditedLayer({});
        KivSettingRepository::Withhold(false);
        KivSettingLayers::SetSystemFile(_systemFile);
        for (const auto& [name, value] : _variables) Put(name, value);
        std::error_code ignored;
        std::filesystem::remove_all(root, ignored);
    }
    KivSettingsSandbox(const KivSettingsSandbox&) = delete;
    KivSettingsSandbox& operator=(const KivSettingsSandbox&) = delete;

    // Sets an environment variable, or removes it; put back at the end.
    void SetVariable(const std::string& name, const std::optional<std::string>& value)
    {
        const char* const before = std::getenv(name.c_str());
        _variables.try_emplace(name, before ? std::optional<std::string>(before) : std::nullopt);
        Put(name, value);
    }

    // The file of a repository in a directory below root ("user", or a layer's name).
    std::filesystem::path File(const std::string& directory,
                               const std::string& name = "DraftingOptions") const
    {
        return root / directory / (name + ".kivsettings");
    }

    static void Write(const std::filesystem::path& path, const std::string& bytes)
    {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    static std::string Bytes(const std::filesystem::path& path)
    {
        std::ostringstream bytes;
        bytes << std::ifstream(path, std::ios::binary).rdbuf();
        return bytes.str();
    }

    // What a program of ours wrote: the lines between the head and the seal, which has to fit.
    static std::string Saved(const std::filesystem::path& path)
    {
        const std::string bytes = Bytes(path);
        if (KivSettingSeal::StateOf(bytes) != KivSettingSeal::State::Fits) return "no seal fits: " + bytes;
        return bytes.substr(0, bytes.rfind("# kivsettings seal")).substr(KivFirstLineLength(bytes));
    }

    // Names the administrator layers (directories below root), outermost first, as the system does.
    void NameLayers(const std::vector<std::string>& names)
    {
        std::string lines = names.empty() ? "none\n" : "";
        for (const std::string& name : names) lines += (root / name).string() + "\n";
        Write(root / "layers", lines);
    }

    // Opens the repository anew, as the next start of a program would.
    static KivSettingRepository& Reopen(const char* name = "DraftingOptions")
    {
        KivSettingRepository::ForgetAll();
        return *KivSettingRepository::GetRepository(name);
    }

    // The value that is read, or fallback.
    template <class T> static T Read(const KivSettingRepository& repository, const char* key, T fallback)
    {
        repository.ReadSetting(key, &fallback, 1);
        return fallback;
    }

    // How many diagnostics contain a text.
    int Said(const std::string& text) const
    {
        int count = 0;
        for (const KivDiagnostic& said : diagnostics) {
            count += said.Message().View().find(text) != std::string_view::npos;
        }
        return count;
    }

    // The names in a directory below root, sorted; without the lock files, which stay for good.
    std::vector<std::string> Names(const std::string& directory) const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(root / directory)) {
            if (entry.path().extension() != ".lock") names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    std::filesystem::path root;
    std::vector<KivDiagnostic> diagnostics;

private:
    static void Put(const std::string& name, const std::optional<std::string>& value)
    {
        if (value)
            setenv(name.c_str(), value->c_str(), 1);
        else
            unsetenv(name.c_str());
    }

    std::map<std::string, std::optional<std::string>> _variables;
    KivUnicodeString _systemFile;
    KivDiagnosticScope _scope{diagnostics};
};

#include "Base/KivEnvironment.h"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <string_view>

const char* KivGetEnv(const char* name)
{
    return std::getenv(name);
}

KivUnicodeString KivGetOfficialVariable(const char* name)
{
    if (const char* value = KivGetEnv(name)) return value;
    if (std::string_view(name) == "KivInstallPath") return KivInstallRoot();
    return {};
}

KivUnicodeString KivInstallRoot()
{
    Dl_info self{};
    if (dladdr(reinterpret_cast<const void*>(&KivInstallRoot), &self) == 0 || !self.dli_fname) return {};
    std::error_code failed;
    const std::filesystem::path library = std::filesystem::canonical(self.dli_fname, failed);
    if (failed) return {};
    return KivUnicodeString(library.parent_path().parent_path().string());
}

#include "Base/KivEnvironment.h"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <string_view>
#include <sys/auxv.h>

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
    // A program that holds the framework itself is known to the loader by the name it was started by alone.
    Dl_info program{};
    const auto* const inProgram = reinterpret_cast<const void*>(getauxval(AT_PHDR));
    const bool isProgram = dladdr(inProgram, &program) != 0 && program.dli_fbase == self.dli_fbase;
    std::error_code failed;
    const std::filesystem::path library =
        std::filesystem::canonical(isProgram ? "/proc/self/exe" : self.dli_fname, failed);
    if (failed) return {};
    return KivUnicodeString(library.parent_path().parent_path().string());
}

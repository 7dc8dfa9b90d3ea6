#include "Component/KivLibrary.h"

#include "Base/KivDiagnostic.h"
#include "Base/KivEnvironment.h"
#include "Base/KivToken.h"

#include <dlfcn.h>

bool KivLoadLibrary(const KivString& name)
{
    const KivUnicodeString file = "lib" + KivUnicodeString(name) + ".so";
    KivUnicodeString places;
    if (const char* path = KivGetEnv("KivLibraryPath")) places = path;
    places.Append(":").Append(KivInstallRoot() + "/lib");

    KivUnicodeString why;
    KivToken tokens(places);
    for (KivUnicodeString directory = tokens.GetNextToken(":"); !directory.IsEmpty();
         directory = tokens.GetNextToken(":")) {
        // Never unloaded: its meta-objects and dictionary entries are pointed at until the process ends.
        const KivUnicodeString path = directory + "/" + file;
        if (dlopen(path.ConvertToChar(), RTLD_NOW | RTLD_GLOBAL | RTLD_NODELETE)) return true;
        why = dlerror();
    }
    KivReport({.severity = KivDiagnostic::Severity::Error,
               .text = "what it offers is not available: " + why,
               .file = file});
    return false;
}

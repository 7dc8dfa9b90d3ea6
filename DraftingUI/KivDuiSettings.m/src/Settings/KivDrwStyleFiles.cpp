#include "KivDrwDefaults.h"

#include "Base/KivEnvironment.h"
#include "Base/KivToken.h"
#include "Disk/KivDirectory.h"

HRESULT GetGPSPath(KivListOfUnicodeString& directories)
{
    const int before = directories.Size();
    for (const char* variable : {"KivCollectionStandard", "KivDefaultCollectionStandard"}) {
        KivToken roots(KivUnicodeString(KivGetEnv(variable)));
        for (KivUnicodeString root = roots.GetNextToken(":"); !root.IsEmpty(); root = roots.GetNextToken(":"))
            directories.Append(root + "/generativeparameters");
    }
    return directories.Size() > before ? S_OK : E_FAIL;
}

HRESULT GetGPSList(KivListOfUnicodeString& files)
{
    files.RemoveAll();
    KivListOfUnicodeString directories;
    GetGPSPath(directories);
    for (const KivUnicodeString& path : directories) {
        KivDirectory directory;
        if (KivOpenDirectory(path, directory) != 0) continue;
        for (KivUnicodeString name; KivReadDirectory(directory, name) == 0;) {
            KivUnicodeString ending = name.SubString(name.GetLengthInByte() - 4, 4);
            ending.ToLower();
            if (ending == ".xml") files.Append(name);
        }
    }
    files.RemoveDuplicates();
    files.QuickSort(&CompareStrings);
    return S_OK;
}

int CompareStrings(const KivUnicodeString* first, const KivUnicodeString* second)
{
    return *first > *second ? 1 : -1;
}

#include "Base/KivDirectory.h"

int KivOpenDirectory(const KivUnicodeString& path, KivDirectory& directory)
{
    directory.stream.reset(opendir(path.ConvertToChar()));
    return directory.stream ? 0 : -1;
}

int KivReadDirectory(KivDirectory& directory, KivUnicodeString& name)
{
    if (!directory.stream) return -1;
    const dirent* entry = readdir(directory.stream.get());
    if (!entry) return -1;
    name = KivUnicodeString(entry->d_name);
    return 0;
}

#include "KivDrwDefaults.h"

#include "Base/KivEnvironment.h"
#include "Command/KivRecord.h"
#include "Disk/KivDirectory.h"

#include <algorithm>

// The constant defaults, and from their entries alone.
#define KIV_SETTING(group, type, key, function, value, kind)                                                 \
    type function()                                                                                          \
    {                                                                                                        \
        return value;                                                                                        \
    }
#define KIV_COMPUTED(group, type, key, function, kind)
#include "KivDrwSettings.def"

namespace {

// Both are read once, when the library is loaded: automated runs must not depend on what a test changes
// later.
const bool automatedRun = KivGetEnv("KivAutomatedRun") != nullptr;
[[maybe_unused]] const char* const dimensionDevelopment = KivGetEnv("QDIM_DEV");

} // namespace

// Automated runs generate everything, so that their drawings show it.
int DefaultGenAxisCreate()
{
    return automatedRun;
}
int DefaultGenCenterCreate()
{
    return automatedRun;
}
int DefaultGenThreadCreate()
{
    return automatedRun;
}

int DefaultDimSketch()
{
    // Decided once: a replayed record that was made without sketched dimensions must not meet them half-way.
    static const int decided = [] {
        const KivRecord* recorder = KivRecord::GetMain();
        if (!recorder || !recorder->IsReplay()) return 1;
        int level = 0;
        recorder->GetSoftwareRecordLevel("QuickDimRecord", &level);
        return level == 0 ? 0 : 1;
    }();
    return decided;
}

KivUnicodeString DefaultFrameAndTitleBlockPath()
{
    const KivUnicodeString directories = KivGetOfficialVariable("KivInstallPath");
    const std::string_view all = directories.View();
    KivUnicodeString candidate;
    for (std::size_t start = 0; !all.empty() && start <= all.size();) {
        const std::size_t end = std::min(all.find(':', start), all.size());
        candidate =
            KivUnicodeString(all.substr(start, end - start)) + "/" + "VBScript" + "/" + "FrameTitleBlock";
        KivDirectory directory;
        if (KivOpenDirectory(candidate, directory) == 0) return candidate;
        start = end + 1;
    }
    return candidate;
}

#include "Settings/KivSettingLayer.h"

#include "Base/KivDiagnostic.h"
#include "Disk/KivHiddenName.h"
#include "Disk/KivTimedReading.h"
#include "Settings/KivSettingLayerCopy.h"
#include "Settings/KivSettingLayers.h"

#include <utility>

namespace {

bool CanLookInto(const KivUnicodeString& directory)
{
    struct stat status {};
    return stat(directory.ConvertToChar(), &status) == 0 && S_ISDIR(status.st_mode) &&
           access(directory.ConvertToChar(), R_OK | X_OK) == 0;
}

KivFileContent ReadLayerFile(const KivUnicodeString& path)
{
    KivFileContent content = KivReadFile(path);
    content.isDirectoryAway = content.state == KivFileContent::State::Absent &&
                              !CanLookInto(KivUnicodeString(KivDirectoryOf(path.View())));
    return content;
}

// The file's own state, and what is wrong with it: empty when it is whole.
KivUnicodeString Examine(const KivUnicodeString& path, KivFileContent& content,
                         const KivSettingLayerCopy& copy, KivSettingFile& file)
{
    switch (content.state) {
    case KivFileContent::State::Unreadable:
        return content.reason;
    case KivFileContent::State::Absent:
        if (content.isDirectoryAway) return "the layer's directory is away";
        copy.Drop();
        return {};
    case KivFileContent::State::Read:
        break;
    }
    file = KivSettingFile(std::move(content.text));
    if (file.IsDamaged()) return "the administrator's file is damaged";
    // Whoever replaces a file in place empties it first; a file with its version line withdraws a layer.
    if (file.Text().empty()) return "the administrator's file is empty";
    if (file.SealState() == KivSettingSeal::State::Broken) return KivSettingSeal::BrokenInLayer(path);
    if (!file.IsTerminated()) return "the administrator's file ends within a line, as if half written";
    copy.Keep(file.Text());
    return {};
}

} // namespace

std::vector<KivSettingLayer> KivReadAdministratorLayers(const std::vector<KivUnicodeString>& directories,
                                                        std::string_view fileName)
{
    std::vector<KivSettingLayer> layers;
    if (directories.empty()) return layers;
    std::vector<KivUnicodeString> paths;
    paths.reserve(directories.size());
    for (const KivUnicodeString& directory : directories) {
        paths.push_back((directory + "/").Append(fileName));
    }
    std::vector<KivFileContent> contents = KivReadInTime(paths, std::chrono::seconds(1), &ReadLayerFile);
    for (std::size_t i = 0; i < directories.size(); ++i) {
        KivSettingLayer layer{KivSettingLayers::NameOf(directories[i]), paths[i], {}, {}};
        const KivSettingLayerCopy copy(layer.path);
        const KivUnicodeString trouble = Examine(layer.path, contents[i], copy, layer.file);
        layer.file.Report(layer.path);
        if (!trouble.IsEmpty()) {
            std::string kept;
            const bool isCopied = copy.Read(kept);
            if (isCopied) layer.replaced = std::exchange(layer.file, KivSettingFile(std::move(kept)));
            KivReport({KivDiagnostic::Severity::Warning,
                       trouble + (isCopied ? "; this machine's copy of its last complete state is in force"
                                           : "; there is no copy of it: what can be read is in force"),
                       layer.path,
                       0,
                       {}});
        }
        layers.push_back(std::move(layer));
    }
    return layers;
}

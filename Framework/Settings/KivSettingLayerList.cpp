#include "Settings/KivSettingLayerList.h"

#include "Base/KivEnvironment.h"
#include "Base/KivToken.h"
#include "Disk/KivAtomicFile.h"
#include "Disk/KivDirectoryTrouble.h"
#include "Disk/KivFileLock.h"
#include "Disk/KivLinkTarget.h"
#include "Disk/KivPath.h"
#include "Disk/KivTimedReading.h"
#include "Settings/KivSettingAdministratorFile.h"
#include "Settings/KivSettingLayerCopy.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingSeal.h"

#include <algorithm>

namespace {

// One that was removed, alone or with its directory, withdraws all layers.
KivFileContent ReadList(const KivUnicodeString& path)
{
    KivFileContent content = KivReadAdministratorFile(path);
    if (content.isDirectoryAway) content.isDirectoryAway = !KivIsKnownToBeAbsent(path);
    return content;
}

// Those of KivAdminSettingsPath.
std::vector<KivSettingListedLayer> Chosen()
{
    std::vector<KivSettingListedLayer> layers;
    const char* const chosen = KivGetEnv("KivAdminSettingsPath");
    KivToken tokens{KivUnicodeString(chosen ? chosen : "")};
    for (KivUnicodeString path = tokens.GetNextToken(":"); !path.IsEmpty(); path = tokens.GetNextToken(":")) {
        const KivUnicodeString directory = KivSettingLayers::Absolute(path.View());
        const auto isIt = [&directory](const auto& layer) { return layer.directory == directory; };
        if (std::none_of(layers.begin(), layers.end(), isIt)) layers.push_back({directory, false});
    }
    return layers;
}

} // namespace

KivSettingLayerList KivSettingLayerList::Read()
{
    KivSettingLayerList list;
    const KivUnicodeString path = KivSettingLayers::SystemFile();
    if (path.IsEmpty()) {
        list._layers = Chosen();
        return list;
    }
    const KivSettingLayerCopy copy(path, true);
    const KivFileContent content = std::move(KivReadInTime({path}, std::chrono::seconds(1), &ReadList)[0]);
    KivSettingLayerListFile file;
    KivUnicodeString doubt = content.reason;
    if (content.state == KivFileContent::State::Absent) {
        if (!content.isDirectoryAway) {
            copy.Keep({});
            list._layers = Chosen();
            return list;
        }
        doubt = "the directory of the list of layers is away";
    } else if (content.state == KivFileContent::State::Read) {
        file = KivSettingLayerListFile(content.text);
        file.Report(path);
        doubt = file.Doubt();
        if (doubt.IsEmpty()) copy.Keep(content.text);
    }
    list._isEnforced = true;
    if (!doubt.IsEmpty()) {
        std::string known;
        if (!copy.StandIn(doubt, "; every setting is closed until it can be read", known)) {
            list._closed = std::move(doubt);
            return list;
        }
        list._isEnforced = !known.empty();
        file = KivSettingLayerListFile(known);
    }
    list._layers = list._isEnforced ? file.Layers() : Chosen();
    return list;
}

KivUnicodeString KivSettingLayerList::Seal()
{
    const KivUnicodeString path = KivSettingLayers::SystemFile();
    const KivLinkTarget target = KivFollowLinks(path, KivLinkTrust::CallerAndRoot);
    if (!target.trouble.IsEmpty()) return target.trouble;
    const KivUnicodeString directory(KivDirectoryOf(target.path.View()));
    if (KivUnicodeString trouble = KivDirectoryTrouble(directory, true); !trouble.IsEmpty()) return trouble;
    KivFileLock lock(target.path);
    if (!lock.Await(std::chrono::seconds(3)) || !lock.IsHeld()) return lock.Reason();
    const KivFileContent content = KivReadFile(target.path, KivLastLink::Refuse);
    if (content.state == KivFileContent::State::Absent) return "there is no such file";
    if (content.state == KivFileContent::State::Unreadable) return content.reason;
    const KivSettingLayerListFile list(content.text);
    list.Report(path);
    if (!list.Trouble().IsEmpty() || KivSettingSeal::StateOf(content.text) == KivSettingSeal::State::Fits)
        return list.Trouble();
    KivAtomicFile file(lock.Place());
    const bool isSealed =
        file.Write(KivSettingSeal::Put(content.text), 0644) && file.Rename() && file.FlushDirectory();
    return isSealed ? KivUnicodeString() : file.Reason();
}

std::vector<KivUnicodeString> KivSettingLayerList::Directories() const
{
    std::vector<KivUnicodeString> directories;
    directories.reserve(_layers.size());
    for (const KivSettingListedLayer& layer : _layers) directories.push_back(layer.directory);
    return directories;
}

KivSettingLayerList KivSettingLayerList::Outside(const KivUnicodeString& edited) &&
{
    if (!edited.IsEmpty()) {
        const auto isIt = [&edited](const auto& layer) { return layer.directory == edited; };
        const auto at = std::find_if(_layers.begin(), _layers.end(), isIt);
        _layers.erase(at == _layers.end() ? _layers.begin() : at, _layers.end());
    }
    return std::move(*this);
}

#include "Settings/KivSettingLayer.h"

#include "Disk/KivTimedReading.h"
#include "Settings/KivSettingAdministratorFile.h"
#include "Settings/KivSettingLayerCopy.h"
#include "Settings/KivSettingLayers.h"

#include <utility>

namespace {

using State = KivFileContent::State;

// What is against believing the file as it was read, in whole; empty when nothing is.
KivUnicodeString DoubtOf(const KivSettingLayer& layer)
{
    const KivSettingFile& file = layer.file;
    // Whoever replaces a file in place empties it first; a file with its version line withdraws a layer.
    if (file.Text().empty()) return "the administrator's file is empty";
    if (file.SealState() == KivSettingSeal::State::Broken) return KivSettingSeal::BrokenInLayer(layer.path);
    if (file.IsDamaged()) return "the administrator's file is damaged";
    if (!file.IsTerminated()) return "the administrator's file ends within a line, as if half written";
    return {};
}

// Puts what is known in place of a file that is not believed.
void Replace(KivSettingLayer& layer, bool isOptional, const KivUnicodeString& doubt,
             const KivSettingLayerCopy& copy)
{
    std::string known;
    const bool isKnown = copy.StandIn(
        doubt, isOptional ? "; the layer counts as absent" : "; its settings are closed until it can be read",
        known);
    layer.replaced = std::exchange(layer.file, KivSettingFile(std::move(known)));
    if (!isKnown && !isOptional) layer.closed = doubt;
}

void Take(KivSettingLayer& layer, bool isOptional, KivFileContent content, const KivSettingLayerCopy& copy)
{
    if (content.state == State::Unreadable) return Replace(layer, isOptional, content.reason, copy);
    if (content.state == State::Absent) {
        if (isOptional) return;
        if (content.isDirectoryAway) return Replace(layer, isOptional, "the layer's directory is away", copy);
        // A file that is gone may be a share that is not mounted.
        if (std::string known; copy.Read(known) && !known.empty()) {
            return Replace(layer, isOptional,
                           "the administrator's file is away; one of its version line alone withdraws it",
                           copy);
        }
        return copy.Keep({});
    }
    layer.file = KivSettingFile(std::move(content.text));
    layer.file.Report(layer.path);
    const KivUnicodeString doubt = DoubtOf(layer);
    if (!doubt.IsEmpty()) return Replace(layer, isOptional, doubt, copy);
    copy.Keep(layer.file.Text());
}

} // namespace

std::vector<KivSettingLayer> KivReadAdministratorLayers(const KivSettingLayerList& list,
                                                        std::string_view fileName)
{
    std::vector<KivSettingLayer> layers;
    if (!list.Closed().IsEmpty()) {
        const KivUnicodeString path = KivSettingLayers::SystemFile();
        layers.push_back({KivSettingLayers::NameOf(path), path, {}, {}, list.Closed()});
    }
    std::vector<KivUnicodeString> paths;
    for (const KivSettingListedLayer& listed : list.Layers())
        paths.push_back((listed.directory + "/").Append(fileName));
    std::vector<KivFileContent> contents =
        KivReadInTime(paths, std::chrono::seconds(1), &KivReadAdministratorFile);
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const KivSettingListedLayer& listed = list.Layers()[i];
        KivSettingLayer layer{KivSettingLayers::NameOf(listed.directory), paths[i], {}, {}, {}};
        Take(layer, listed.isOptional, std::move(contents[i]),
             KivSettingLayerCopy(paths[i], list.IsEnforced()));
        layers.push_back(std::move(layer));
    }
    return layers;
}

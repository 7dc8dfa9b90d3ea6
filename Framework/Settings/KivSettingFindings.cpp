#include "Settings/KivSettingFindings.h"

#include "Base/KivDiagnosticScope.h"
#include "Disk/KivExposure.h"
#include "Disk/KivTimedCalls.h"
#include "Disk/KivTimedReading.h"
#include "Settings/KivSettingLayer.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingOwnFile.h"
#include "Settings/KivSettingPrefixLocks.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

using Kind = KivSettingFinding::Kind;

// One layer's file, in the order in which they bind.
struct Layer {
    const KivUnicodeString& name;
    const KivUnicodeString& path;
    const KivSettingFile& file;   // in force
    const KivSettingFile& onDisk; // what its writer sees, and has to mend
    bool isUsers = false;
    bool isClosed = false;
};

class Check {
public:
    explicit Check(std::span<const char* const> known) : _known(known.begin(), known.end()) {}

    // Goes over the layers, outermost first.
    std::vector<KivSettingFinding> Run(const std::vector<Layer>& layers)
    {
        const bool isListed = !_known.empty();
        for (const Layer& layer : layers) {
            for (const KivSettingLine& line : layer.file.Lines())
                if (!isListed && KivHasValue(line.value)) _known.push_back(line.key);
        }
        std::sort(_known.begin(), _known.end());
        for (const Layer& layer : layers) {
            for (const KivSettingLine& line : layer.onDisk.Lines()) {
                if (!line.key.empty() && !line.reason) Examine(layer, line);
            }
            TakeLocks(layer);
        }
        return std::move(_findings);
    }

private:
    using Source = KivSettingPrefixLocks::Source;

    // "layer "site" (file, line 3)"
    KivUnicodeString Description(const Source& source) const
    {
        const Layer& layer = *_outside[static_cast<std::size_t>(source.layer)];
        KivUnicodeString words("layer \"");
        words.Append(layer.name).Append("\" (").Append(layer.path);
        if (source.line > 0) words.Append(", line " + std::to_string(source.line));
        return words.Append(")");
    }

    void Examine(const Layer& layer, const KivSettingLine& line)
    {
        const auto say = [&](const KivUnicodeString& text) {
            _findings.push_back(
                {Kind::NoEffect, layer.name, layer.path, line.number, KivString(line.key), text});
        };
        const bool isSet = KivHasValue(line.value);
        // What a first start has written yields to every administrator: nobody has anything to do.
        if (isSet && line.initial && !line.lock && IsKnown(line)) return;
        if (line.lock && layer.isUsers) {
            say(isSet ? "a lock in the user's own file binds nobody; its value counts"
                      : "a lock in the user's own file binds nobody");
        }
        if (!IsKnown(line)) {
            return say(line.isPattern ? "the lock has no effect: no setting's name begins so"
                       : line.lock    ? "the lock has no effect: there is no setting of this name"
                                      : "the value is not used: there is no setting of this name");
        }
        if (const Source outer = LockedBy(line.key); outer.layer >= 0) {
            const bool locks = line.lock && !layer.isUsers;
            if (!locks && !isSet) return;
            return say(KivUnicodeString(locks && isSet ? "neither lock nor value have an effect: "
                                        : locks        ? "the lock has no effect: "
                                                       : "the value is not used: ") +
                       Description(outer) + " locks it already");
        }
    }

    bool IsKnown(const KivSettingLine& line) const
    {
        const std::string_view wanted = line.key.substr(0, line.key.size() - (line.isPattern ? 1 : 0));
        const auto first = std::lower_bound(_known.begin(), _known.end(), wanted);
        return first != _known.end() && (line.isPattern ? first->starts_with(wanted) : *first == wanted);
    }

    // The lock of a layer further out on a key, or on all keys of a pattern.
    Source LockedBy(std::string_view key) const
    {
        const auto own = _locks.find(key);
        const Source prefix = _prefixes.Find(key);
        if (own == _locks.end()) return prefix;
        return prefix.layer >= 0 && prefix.layer < own->second.layer ? prefix : own->second;
    }

    void TakeLocks(const Layer& layer)
    {
        if (layer.isUsers) return;
        const int number = static_cast<int>(_outside.size());
        _outside.push_back(&layer);
        if (layer.isClosed) _prefixes.Add("*", number, 0);
        for (const KivSettingLine& line : layer.file.Lines()) {
            if (line.isPattern) {
                _prefixes.Add(line.key, number, line.number);
            } else if (line.lock && !line.key.empty()) {
                _locks.try_emplace(line.key, Source{number, line.number});
            }
        }
    }

    std::vector<std::string_view> _known; // sorted
    std::vector<const Layer*> _outside;
    std::map<std::string_view, Source> _locks;
    KivSettingPrefixLocks _prefixes;
    std::vector<KivSettingFinding> _findings;
};

constexpr std::chrono::seconds kPatience{1};

// Whoever may change a layer's file, or the list, changes its locks. Each place is told of once. Where one
// does not answer in time nothing is found: that it does not is said when the file is read.
void FindExposures(const KivSettingLayerList& list, std::string_view fileName,
                   std::vector<KivSettingFinding>& findings)
{
    std::vector<KivUnicodeString> paths{KivSettingLayers::SystemFile()}, names{{}};
    for (const KivUnicodeString& directory : list.Directories()) {
        names.push_back(KivSettingLayers::NameOf(directory));
        if (list.IsEnforced()) {
            paths.push_back((directory + "/").Append(fileName));
        } else {
            findings.push_back(
                {Kind::Open,
                 names.back(),
                 directory,
                 0,
                 {},
                 "its locks are not enforced: KivAdminSettingsPath names it, which every user may change"});
        }
    }
    KivTimedCalls<std::vector<KivExposure>> calls;
    const auto exposures = calls.Make(paths, &KivFindExposures, kPatience);
    std::set<KivUnicodeString> places;
    for (std::size_t at = 0; at < paths.size(); ++at) {
        if (!exposures[at]) continue;
        for (const KivExposure& exposure : *exposures[at]) {
            if (!places.insert(exposure.path).second) continue;
            findings.push_back({Kind::Open,
                                names[at],
                                exposure.path,
                                0,
                                {},
                                KivUnicodeString("locks are not enforced: ") + exposure.text});
        }
    }
}

} // namespace

std::vector<KivSettingFinding> KivCheckSettings(std::string_view name, std::span<const char* const> known,
                                                const KivUnicodeString& editedLayer)
{
    std::vector<KivSettingFinding> findings;
    const KivUnicodeString fileName = KivSettingLayers::FileIn({}, name);
    const bool isUsers = editedLayer.IsEmpty();
    const KivUnicodeString ownDirectory = isUsers ? KivSettingLayers::User() : editedLayer;
    const KivUnicodeString ownName = isUsers ? "user" : KivSettingLayers::NameOf(editedLayer);
    KivSettingOwnFile own(
        ownDirectory.IsEmpty() ? ownDirectory : KivSettingLayers::FileIn(ownDirectory, name), !isUsers);

    // What the readers say is what is wrong.
    std::vector<KivDiagnostic> said;
    std::vector<KivSettingLayer> outside;
    KivSettingLayerList list;
    {
        const KivDiagnosticScope scope(said);
        list = KivSettingLayerList::Read().Outside(editedLayer);
        outside = KivReadAdministratorLayers(list, fileName.View());
        if (KivAnswersInTime(own.Path(), kPatience))
            own.Read();
        else
            KivReport({.text = "the file system does not answer in time", .file = own.Path()});
    }

    std::vector<Layer> layers;
    layers.reserve(outside.size() + 1);
    for (const KivSettingLayer& layer : outside)
        layers.push_back({layer.name, layer.path, layer.file, layer.replaced ? *layer.replaced : layer.file,
                          false, !layer.closed.IsEmpty()});
    layers.push_back({ownName, own.Path(), own.File(), own.File(), isUsers});

    for (const KivDiagnostic& diagnostic : said) {
        const auto at = std::find_if(layers.begin(), layers.end(),
                                     [&](const Layer& layer) { return layer.path == diagnostic.file; });
        findings.push_back({Kind::Wrong, at == layers.end() ? KivUnicodeString() : at->name, diagnostic.file,
                            diagnostic.line, diagnostic.key, diagnostic.text});
    }
    FindExposures(list, fileName.View(), findings);
    for (KivSettingFinding& finding : Check(known).Run(layers)) findings.push_back(std::move(finding));
    return findings;
}

#include "Settings/KivSettingStore.h"

#include "Base/KivDiagnostic.h"

#include "Settings/KivSettingLayers.h"

#include <algorithm>
#include <unordered_map>

namespace {

constexpr const char* kEnding = ".kivsettings";

KivUnicodeString OwnPath(const KivUnicodeString& directory, std::string_view name)
{
    return directory.IsEmpty() ? directory : (directory + "/").Append(name).Append(kEnding);
}

// The layers outside of the edited one; a directory that is none of them stands alone.
std::vector<KivUnicodeString> Outside(const KivUnicodeString& edited)
{
    std::vector<KivUnicodeString> layers = KivSettingLayers::Administrator();
    if (edited.IsEmpty()) return layers;
    const auto at = std::find(layers.begin(), layers.end(), edited);
    layers.erase(at == layers.end() ? layers.begin() : at, layers.end());
    return layers;
}

void TakeLine(const KivSettingLine& line, bool isAdministrators, KivSettingEntry& entry)
{
    if (KivHasValue(line.value)) {
        entry.value = line.value;
        entry.line = line.number;
        entry.initial = line.initial && !isAdministrators;
    }
    if (line.lock && isAdministrators) {
        entry.lock = true;
        entry.lockLine = line.number;
    }
}

} // namespace

KivSettingStore::KivSettingStore(std::string_view name, const KivUnicodeString& editedLayer)
    : _name(name), _isAdministrator(!editedLayer.IsEmpty()),
      _ownLayer(_isAdministrator ? KivSettingLayers::NameOf(editedLayer) : "user"),
      _layerDirectories(Outside(editedLayer)),
      _own(OwnPath(_isAdministrator ? editedLayer : KivSettingLayers::User(), name), _isAdministrator)
{
    ReadLayers();
    _own.Read();
    TakeOwnFile();
}

void KivSettingStore::ReadLayers()
{
    _layers = KivReadAdministratorLayers(_layerDirectories, (KivUnicodeString(_name) + kEnding).View());
    for (KivSettingAttribute& attribute : _table) {
        attribute.given = {};
        attribute.givenLayer = attribute.lockLayer = -1;
    }
    for (int layer = 0; layer < static_cast<int>(_layers.size()); ++layer) {
        for (const KivSettingLine& line : _layers[static_cast<std::size_t>(layer)].file.Lines()) {
            if (line.key.empty() || (!line.lock && !KivHasValue(line.value))) continue; // damaged
            KivSettingAttribute& attribute = _table[_table.IndexOfNew(line.key, line.hash)];
            if (attribute.lockLayer >= 0 && attribute.lockLayer < layer) continue;
            if (KivHasValue(line.value)) {
                attribute.given = line.value;
                attribute.givenLayer = layer;
                attribute.givenLine = line.number;
            }
            if (line.lock) {
                attribute.lockLayer = layer;
                attribute.lockLine = line.number;
            }
        }
    }
    for (KivSettingAttribute& attribute : _table) attribute.Resolve();
}

// Takes what the own file says; what has not been saved stays on top of it.
void KivSettingStore::TakeOwnFile()
{
    std::unordered_map<std::size_t, KivSettingEntry> working, saved;
    for (const auto& [index, before] : _unsaved) {
        if (IsDirty(index, before)) working.emplace(index, _table[index].own);
        saved.emplace(index, before);
    }
    for (KivSettingAttribute& attribute : _table) attribute.own = {};
    _table.Reserve(_own.File().Lines().size());
    for (const KivSettingLine& line : _own.File().Lines()) {
        if (line.key.empty() || (!line.lock && !KivHasValue(line.value))) continue;
        TakeLine(line, _isAdministrator, _table[_table.IndexOfNew(line.key, line.hash)].own);
    }
    for (auto& [index, before] : _unsaved) before = _table[index].own;
    for (auto& [index, before] : _uncommitted) {
        // What was the saved state at the commit follows the disk; what was committed unsaved stays.
        const auto old = saved.find(index);
        if (old == saved.end() || old->second.Says(before)) before = _table[index].own;
    }
    for (const auto& [index, entry] : working) _table[index].own = entry;
    for (KivSettingAttribute& attribute : _table) attribute.Resolve();
}

void KivSettingStore::Change(std::size_t index, const KivSettingEntry& says)
{
    KivSettingAttribute& attribute = _table[index];
    if (attribute.own.Says(says)) return;
    if (!std::exchange(attribute.isUnsaved, true)) _unsaved.emplace_back(index, attribute.own);
    if (!std::exchange(attribute.isUncommitted, true)) _uncommitted.emplace_back(index, attribute.own);
    attribute.own = says;
    attribute.Resolve();
}

bool KivSettingStore::Write(std::string_view key, KivSettingValue value)
{
    if (!KivIsSettingKey(key) || !KivIsSound(value)) return false;
    const std::size_t index = _table.IndexOfNew(key);
    const KivSettingAttribute& attribute = _table[index];
    if (attribute.lockLayer >= 0) return false;
    KivSettingEntry says = attribute.own;
    const bool isUsers = KivHasValue(says.value) && !says.initial;
    says.value = std::move(value);
    says.initial = isInitial && !isUsers && !_isAdministrator;
    says.line = 0;
    Change(index, says);
    return true;
}

bool KivSettingStore::SetLock(std::string_view key, bool locked)
{
    if (!_isAdministrator || !KivIsSettingKey(key)) return false;
    const std::size_t index = _table.IndexOfNew(key);
    if (_table[index].lockLayer >= 0) return false;
    KivSettingEntry says = _table[index].own;
    says.lock = locked;
    says.lockLine = 0;
    Change(index, says);
    return true;
}

void KivSettingStore::DropOwn(std::string_view key)
{
    const std::size_t index = _table.IndexOf(key);
    if (index == KivSettingTable::None) return;
    KivSettingEntry says = _table[index].own;
    says.value = {};
    says.initial = false;
    says.line = 0;
    Change(index, says);
}

KivSettingStore::Values KivSettingStore::ShownNow() const
{
    Values shown;
    shown.reserve(_table.Size());
    for (const KivSettingAttribute& attribute : _table) shown.push_back(attribute.Shown());
    return shown;
}

KivSettingStore::Values KivSettingStore::ShownAtCommit() const
{
    Values shown = ShownNow();
    for (const auto& [index, before] : _uncommitted) shown[index] = _table[index].ShownWith(before);
    return shown;
}

KivSettingStore::Keys KivSettingStore::ChangedSince(const Values& shown) const
{
    Keys changed;
    for (std::size_t i = 0; i < _table.Size(); ++i) {
        const KivSettingValue before = i < shown.size() ? shown[i] : KivSettingValue();
        if (!KivSameValue(before, _table[i].Shown())) changed.emplace_back(_table[i].key);
    }
    return changed;
}

void KivSettingStore::ForgetUncommitted()
{
    for (const auto& [index, before] : _uncommitted) _table[index].isUncommitted = false;
    _uncommitted.clear();
}

void KivSettingStore::ForgetUnsaved()
{
    for (const auto& [index, before] : _unsaved) _table[index].isUnsaved = false;
    _unsaved.clear();
}

KivSettingStore::Keys KivSettingStore::Commit()
{
    if (_uncommitted.empty()) return {};
    const Values shown = ShownAtCommit();
    ForgetUncommitted();
    return ChangedSince(shown);
}

KivSettingStore::Keys KivSettingStore::Rollback()
{
    if (_uncommitted.empty()) return {};
    const Values shown = ShownNow();
    for (const auto& [index, before] : _uncommitted) {
        _table[index].own = before;
        _table[index].Resolve();
    }
    ForgetUncommitted();
    return ChangedSince(shown);
}

KivSettingStore::Keys KivSettingStore::Refresh()
{
    const Values shown = ShownNow();
    ReadLayers();
    if (_own.Read()) TakeOwnFile();
    return ChangedSince(shown);
}

KivSettingStore::Keys KivSettingStore::Save(Receipt& result)
{
    std::vector<KivSettingChange> changes;
    for (const auto& [index, saved] : _unsaved) {
        if (IsDirty(index, saved)) changes.push_back({KivString(_table[index].key), _table[index].own});
    }
    if (changes.empty()) {
        ForgetUnsaved();
        result = Receipt::Nothing;
        return Commit();
    }
    const Values shown = ShownAtCommit();
    const KivSettingOwnFile::Outcome outcome = _own.Save(changes);
    if (outcome == KivSettingOwnFile::Outcome::Refused) {
        // No point to return to: whoever is told that his changes are not safe may still take them back.
        result = Receipt::Refused;
        return {};
    }
    result = outcome == KivSettingOwnFile::Outcome::Durable ? Receipt::Durable : Receipt::Visible;
    ForgetUnsaved();
    ForgetUncommitted();
    TakeOwnFile();
    return ChangedSince(shown);
}

void KivSettingStore::Describe(const KivSettingAttribute& attribute, KivSettingInfo& info) const
{
    using Origin = KivSettingInfo::Origin;
    info.origin = attribute.origin;
    info.value = KivShownSettingText(attribute.Shown());
    if (attribute.origin == Origin::User) {
        info.initial = attribute.own.initial;
        info.layer = _ownLayer;
        info.file = _own.Path();
        info.line = attribute.own.line;
        if (_isAdministrator) info.origin = Origin::Administrator;
    } else if (attribute.origin == Origin::Administrator) {
        const KivSettingLayer& layer = _layers[static_cast<std::size_t>(attribute.givenLayer)];
        info.layer = layer.name;
        info.file = layer.path;
        info.line = attribute.givenLine;
    }
    info.locked = attribute.lockLayer >= 0;
    info.lockedHere = !info.locked && attribute.own.lock;
    if (info.locked) {
        const KivSettingLayer& layer = _layers[static_cast<std::size_t>(attribute.lockLayer)];
        info.lockLayer = layer.name;
        info.lockFile = layer.path;
        info.lockLine = attribute.lockLine;
    } else if (info.lockedHere) {
        info.lockLayer = _ownLayer;
        info.lockFile = _own.Path();
        info.lockLine = attribute.own.lockLine;
    }
}

void KivSettingStore::ReportOtherType(const KivSettingAttribute& attribute, const char* expected)
{
    if (!KivHasValue(attribute.Shown()) || !_typesReported.insert(attribute.key).second) return;
    KivSettingInfo info;
    Describe(attribute, info);
    KivReport({.text = KivUnicodeString("the value is of the type ") + KivSettingTypeName(attribute.Shown()) +
                       " instead of " + expected + "; the default is used",
               .file = info.file,
               .line = info.line,
               .key = KivString(attribute.key)});
}

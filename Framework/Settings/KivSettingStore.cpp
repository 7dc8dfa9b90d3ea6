#include "Settings/KivSettingStore.h"

#include "Base/KivDiagnostic.h"

#include "Settings/KivSettingLayers.h"

#include <algorithm>
#include <unordered_map>

namespace {

// Empty where there is no place for it.
KivUnicodeString OwnPath(const KivUnicodeString& directory, std::string_view name)
{
    return directory.IsEmpty() ? directory : KivSettingLayers::FileIn(directory, name);
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
      _layerDirectories(KivSettingLayers::Outside(editedLayer)),
      _own(OwnPath(_isAdministrator ? editedLayer : KivSettingLayers::User(), name), _isAdministrator),
      _places{.ownName = _isAdministrator ? KivSettingLayers::NameOf(editedLayer) : "user",
              .ownPath = _own.Path(),
              .layers = {}}
{
    ReadFiles();
}

// Reads what has changed on disk.
void KivSettingStore::ReadFiles()
{
    _news.Say([this] {
        ReadLayers();
        if (_own.Read() || !_isRead) TakeOwnFile();
        _isRead = true;
    });
}

// The attribute of a key, which a lock on a prefix may govern before anybody has said anything of it.
std::size_t KivSettingStore::Meet(std::string_view key, std::size_t hash)
{
    const std::size_t known = _table.Size();
    const KivSettingAttribute* const before = _table.Data();
    const std::size_t index = _table.IndexOfNew(key, hash);
    if (index == known && (!_prefixLocks.IsEmpty() || !_ownPrefixLocks.IsEmpty())) Govern(_table[index]);
    if (_table.Data() != before) AimAll();
    return index;
}

void KivSettingStore::Govern(KivSettingAttribute& attribute) const
{
    const KivSettingPrefixLocks::Place outside = _prefixLocks.Find(attribute.key);
    attribute.lockLayer = outside.layer;
    attribute.lockLine = outside.line;
    const KivSettingPrefixLocks::Place here = _ownPrefixLocks.Find(attribute.key);
    attribute.isUnderOwnPrefix = here.layer >= 0;
    attribute.ownPrefixLine = here.line;
}

// After a lock on a prefix came or went in the written layer.
void KivSettingStore::GovernAllOwn()
{
    if (!_isAdministrator) return;
    _ownPrefixLocks.Clear();
    for (const KivSettingAttribute& attribute : _table) {
        if (attribute.own.lock && KivIsSettingPattern(attribute.key))
            _ownPrefixLocks.Add(attribute.key, 0, attribute.own.lockLine);
    }
    for (KivSettingAttribute& attribute : _table) {
        const KivSettingPrefixLocks::Place here = _ownPrefixLocks.Find(attribute.key);
        attribute.isUnderOwnPrefix = here.layer >= 0;
        attribute.ownPrefixLine = here.line;
    }
}

// A key that nobody has met, when a lock governs it.
const KivSettingAttribute* KivSettingStore::MeetGoverned(std::string_view key)
{
    const bool isLocked = _prefixLocks.Find(key).layer >= 0 || _ownPrefixLocks.Find(key).layer >= 0;
    if (!isLocked || !KivIsSettingKey(key)) return nullptr;
    return &_table[Meet(key, KivSettingTable::Hash(key))];
}

std::span<const KivSettingValue* const> KivSettingStore::Bind(std::span<const char* const> keys)
{
    for (const std::uint32_t index : _bound) _table[index].boundPlace = -1;
    _bound.clear();
    _shownBound.clear();
    _bound.reserve(keys.size());
    _table.Reserve(keys.size());
    for (const char* const key : keys) {
        const std::size_t index = Meet(key, KivSettingTable::Hash(key));
        _table[index].boundPlace = static_cast<int>(_bound.size());
        _bound.push_back(static_cast<std::uint32_t>(index));
    }
    _shownBound.resize(_bound.size());
    AimAll();
    return _shownBound;
}

// After the values may have moved or many of them changed.
void KivSettingStore::AimAll()
{
    for (std::size_t place = 0; place < _shownBound.size(); ++place)
        _shownBound[place] = &_table[_bound[place]].Shown();
}

void KivSettingStore::ReadLayers()
{
    _places.layers =
        KivReadAdministratorLayers(_layerDirectories, KivSettingLayers::FileIn({}, _name.View()).View());
    _prefixLocks.Clear();
    for (int layer = 0; layer < static_cast<int>(_places.layers.size()); ++layer) {
        const KivSettingFile& file = _places.layers[static_cast<std::size_t>(layer)].file;
        if (!file.HasPatterns()) continue;
        for (const KivSettingLine& line : file.Lines()) {
            if (line.isPattern) _prefixLocks.Add(line.key, layer, line.number);
        }
    }
    for (KivSettingAttribute& attribute : _table) {
        attribute.given = {};
        attribute.givenLayer = -1;
        Govern(attribute);
    }
    for (int layer = 0; layer < static_cast<int>(_places.layers.size()); ++layer) {
        for (const KivSettingLine& line : _places.layers[static_cast<std::size_t>(layer)].file.Lines()) {
            if (line.isPattern || line.key.empty()) continue;
            if (!line.lock && !KivHasValue(line.value)) continue; // damaged
            KivSettingAttribute& attribute = _table[Meet(line.key, line.hash)];
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
    AimAll();
}

// Takes what the own file says. What has not been saved stays on top of it, but for values of a first start:
// nobody chose them, so that one gives way to what the file has come to say since.
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
        if (line.isPattern && !_isAdministrator) continue; // nobody is inside of the user's file
        TakeLine(line, _isAdministrator, _table[Meet(line.key, line.hash)].own);
    }
    const auto yields = [&](std::size_t index, const KivSettingEntry& entry) {
        const KivSettingEntry& now = _table[index].own;
        return entry.initial && KivHasValue(now.value) && !now.Says(saved.at(index));
    };
    for (auto& [index, before] : _unsaved) before = _table[index].own;
    for (auto& [index, before] : _uncommitted) {
        // What was the saved state at the commit follows the disk; what was committed unsaved stays.
        const auto old = saved.find(index);
        if (old == saved.end() || old->second.Says(before) || yields(index, before))
            before = _table[index].own;
    }
    for (const auto& [index, entry] : working) {
        if (!yields(index, entry)) _table[index].own = entry;
    }
    GovernAllOwn();
    for (KivSettingAttribute& attribute : _table) attribute.Resolve();
    AimAll();
}

void KivSettingStore::Change(std::size_t index, const KivSettingEntry& says)
{
    KivSettingAttribute& attribute = _table[index];
    if (attribute.own.Says(says)) return;
    if (!std::exchange(attribute.isUnsaved, true)) _unsaved.emplace_back(index, attribute.own);
    if (!std::exchange(attribute.isUncommitted, true)) _uncommitted.emplace_back(index, attribute.own);
    attribute.own = says;
    attribute.Resolve();
    Aim(attribute);
    if (attribute.key.back() == '*') GovernAllOwn();
}

bool KivSettingStore::Write(std::string_view key, KivSettingValue value)
{
    if (!KivIsSettingKey(key) || !KivIsSound(value)) return false;
    const std::size_t index = Meet(key, KivSettingTable::Hash(key));
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
    const bool isPattern = KivIsSettingPattern(key);
    if (!_isAdministrator || (!isPattern && !KivIsSettingKey(key))) return false;
    const std::size_t index = Meet(key, KivSettingTable::Hash(key));
    if (_table[index].lockLayer >= 0) return false;
    if (!locked && !isPattern && _table[index].isUnderOwnPrefix) return false; // it would stay locked
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

KivSettingStore::AllShown KivSettingStore::ShownNow() const
{
    AllShown shown;
    shown.reserve(_table.Size());
    for (const KivSettingAttribute& attribute : _table)
        shown.push_back({attribute.Shown(), attribute.LockWith(attribute.own)});
    return shown;
}

bool KivSettingStore::Concerns(std::size_t index, Only only) const
{
    const auto isIt = [&](const char* key) { return _table[index].key == key; };
    return only.empty() || std::any_of(only.begin(), only.end(), isIt);
}

KivSettingStore::AllShown KivSettingStore::ShownAtCommit(Only only) const
{
    AllShown shown = ShownNow();
    for (const auto& [index, before] : _uncommitted) {
        if (Concerns(index, only))
            shown[index] = {_table[index].ShownWith(before), _table[index].LockWith(before)};
    }
    return shown;
}

KivSettingStore::Keys KivSettingStore::ChangedSince(const AllShown& shown) const
{
    const Shown nothing;
    Keys changed;
    for (std::size_t i = 0; i < _table.Size(); ++i) {
        const Shown& before = i < shown.size() ? shown[i] : nothing;
        const KivSettingAttribute& now = _table[i];
        if (!KivSameValue(before.value, now.Shown()) || before.lock != now.LockWith(now.own))
            changed.emplace_back(now.key);
    }
    return changed;
}

void KivSettingStore::Forget(Journal& journal, bool KivSettingAttribute::*standsInIt, Only only)
{
    for (const auto& [index, before] : journal) {
        if (Concerns(index, only)) _table[index].*standsInIt = false;
    }
    std::erase_if(journal, [&](const auto& entry) { return !(_table[entry.first].*standsInIt); });
}

KivSettingStore::Keys KivSettingStore::Commit(Only only)
{
    if (_uncommitted.empty()) return {};
    const AllShown shown = ShownAtCommit(only);
    Forget(_uncommitted, &KivSettingAttribute::isUncommitted, only);
    return ChangedSince(shown);
}

KivSettingStore::Keys KivSettingStore::Rollback(Only only)
{
    if (_uncommitted.empty()) return {};
    const AllShown shown = ShownNow();
    for (const auto& [index, before] : _uncommitted) {
        if (!Concerns(index, only)) continue;
        _table[index].own = before;
        _table[index].Resolve();
        Aim(_table[index]);
    }
    Forget(_uncommitted, &KivSettingAttribute::isUncommitted, only);
    GovernAllOwn();
    return ChangedSince(shown);
}

KivSettingStore::Keys KivSettingStore::Refresh()
{
    const AllShown shown = ShownNow();
    ReadFiles();
    return ChangedSince(shown);
}

std::vector<KivSettingChange> KivSettingStore::Unsaved(Only only) const
{
    std::vector<KivSettingChange> changes;
    for (const auto& [index, saved] : _unsaved) {
        if (IsDirty(index, saved) && Concerns(index, only))
            changes.push_back({KivString(_table[index].key), _table[index].own});
    }
    return changes;
}

KivSettingStore::Keys KivSettingStore::Save(Receipt& result, Only only)
{
    using Outcome = KivSettingOwnFile::Outcome;
    if (Unsaved(only).empty()) {
        Forget(_unsaved, &KivSettingAttribute::isUnsaved, only);
        result = Receipt::Nothing;
        return Commit(only);
    }
    const AllShown committed = ShownAtCommit(only), working = ShownNow();
    const Outcome outcome = _own.Save([&](bool wasRead) {
        if (wasRead) TakeOwnFile();
        return Unsaved(only);
    });
    if (outcome == Outcome::Refused) {
        // No point to return to: whoever is told that his changes are not safe may still take them back.
        result = Receipt::Refused;
        return ChangedSince(working);
    }
    result = outcome == Outcome::Nothing   ? Receipt::Nothing
             : outcome == Outcome::Durable ? Receipt::Durable
                                           : Receipt::Visible;
    Forget(_unsaved, &KivSettingAttribute::isUnsaved, only);
    Forget(_uncommitted, &KivSettingAttribute::isUncommitted, only);
    TakeOwnFile();
    return ChangedSince(committed);
}

void KivSettingStore::Trace(const KivSettingAttribute& attribute, KivSettingProvenance& place) const
{
    _places.Trace(attribute, place);
    if (!_isAdministrator) return;
    if (place.origin == KivSettingInfo::Origin::User) place.origin = KivSettingInfo::Origin::Administrator;
    place.canLock = !place.locked && !attribute.isUnderOwnPrefix;
}

void KivSettingStore::Describe(const KivSettingAttribute& attribute, KivSettingInfo& info) const
{
    KivSettingProvenance place;
    Trace(attribute, place);
    place.Fill(info);
    info.value = KivShownSettingText(attribute.Shown());
    if (KivHasValue(attribute.Shown())) info.type = KivSettingTypeName(attribute.Shown());
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

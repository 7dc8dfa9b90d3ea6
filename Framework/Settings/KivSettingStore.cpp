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
      _sources(_isAdministrator ? KivSettingLayers::NameOf(editedLayer) : "user", _own.Path(),
               _isAdministrator)
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

// A new attribute is under the locks on prefixes before anybody has said anything of it.
std::size_t KivSettingStore::FindOrAdd(std::string_view key, std::size_t hash)
{
    const std::size_t size = _table.Size();
    const KivSettingAttribute* const before = _table.Data();
    const std::size_t index = _table.FindOrAdd(key, hash);
    if (index == size && (!_prefixLocks.IsEmpty() || !_ownPrefixLocks.IsEmpty()))
        ApplyPrefixLocks(_table[index]);
    if (_table.Data() != before) UpdateBindings();
    return index;
}

void KivSettingStore::ApplyPrefixLocks(KivSettingAttribute& attribute) const
{
    const KivSettingPrefixLocks::Source outside = _prefixLocks.Find(attribute.key);
    attribute.lockLayer = outside.layer;
    attribute.lockLine = outside.line;
    ApplyOwnPrefixLock(attribute);
}

void KivSettingStore::ApplyOwnPrefixLock(KivSettingAttribute& attribute) const
{
    const KivSettingPrefixLocks::Source here = _ownPrefixLocks.Find(attribute.key);
    attribute.isUnderOwnPrefix = here.layer >= 0;
    attribute.ownPrefixLine = here.line;
}

// After a lock on a prefix may have come or gone in the written layer.
void KivSettingStore::CollectOwnPrefixLocks()
{
    if (!_isAdministrator) return;
    _ownPrefixLocks.Clear();
    for (const KivSettingAttribute& attribute : _table) {
        if (attribute.own.lock && KivIsSettingPattern(attribute.key))
            _ownPrefixLocks.Add(attribute.key, 0, attribute.own.lockLine);
    }
    for (KivSettingAttribute& attribute : _table) ApplyOwnPrefixLock(attribute);
}

const KivSettingAttribute* KivSettingStore::AddIfLocked(std::string_view key)
{
    const bool isLocked = _prefixLocks.Find(key).layer >= 0 || _ownPrefixLocks.Find(key).layer >= 0;
    if (!isLocked || !KivIsSettingKey(key)) return nullptr;
    return &_table[FindOrAdd(key, KivSettingTable::Hash(key))];
}

std::span<const KivSettingValue* const> KivSettingStore::Bind(std::span<const char* const> keys)
{
    for (const std::uint32_t index : _bound) _table[index].boundIndex = -1;
    _bound.clear();
    _boundValues.clear();
    _bound.reserve(keys.size());
    _table.Reserve(keys.size());
    for (const char* const key : keys) {
        const std::size_t index = FindOrAdd(key, KivSettingTable::Hash(key));
        _table[index].boundIndex = static_cast<int>(_bound.size());
        _bound.push_back(static_cast<std::uint32_t>(index));
    }
    _boundValues.resize(_bound.size());
    UpdateBindings();
    return _boundValues;
}

// After the values may have moved or many of them changed.
void KivSettingStore::UpdateBindings()
{
    for (std::size_t index = 0; index < _boundValues.size(); ++index)
        _boundValues[index] = &_table[_bound[index]].Shown();
}

void KivSettingStore::ResolveAll()
{
    for (KivSettingAttribute& attribute : _table) attribute.Resolve();
    UpdateBindings();
}

void KivSettingStore::ReadLayers()
{
    _sources.SetLayers(
        KivReadAdministratorLayers(_layerDirectories, KivSettingLayers::FileIn({}, _name.View()).View()));
    const std::vector<KivSettingLayer>& layers = _sources.Layers();
    _prefixLocks.Clear();
    for (int layer = 0; layer < static_cast<int>(layers.size()); ++layer) {
        const KivSettingFile& file = layers[static_cast<std::size_t>(layer)].file;
        if (!file.HasPatterns()) continue;
        for (const KivSettingLine& line : file.Lines()) {
            if (line.isPattern) _prefixLocks.Add(line.key, layer, line.number);
        }
    }
    for (KivSettingAttribute& attribute : _table) {
        attribute.given = {};
        attribute.givenLayer = -1;
        ApplyPrefixLocks(attribute);
    }
    for (int layer = 0; layer < static_cast<int>(layers.size()); ++layer) {
        for (const KivSettingLine& line : layers[static_cast<std::size_t>(layer)].file.Lines()) {
            if (line.isPattern || line.key.empty()) continue;
            if (!line.lock && !KivHasValue(line.value)) continue; // damaged
            KivSettingAttribute& attribute = _table[FindOrAdd(line.key, line.hash)];
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
    ResolveAll();
}

// Takes what the own file entry. What has not been saved stays on top of it, but for values of a first start:
// nobody chose them, so that one gives way to what the file has come to say since.
void KivSettingStore::TakeOwnFile()
{
    std::unordered_map<std::size_t, KivSettingEntry> working, saved;
    for (const KivSettingJournal::Record& record : _unsaved) {
        if (IsDirty(record)) working.emplace(record.index, _table[record.index].own);
        saved.emplace(record.index, record.before);
    }
    for (KivSettingAttribute& attribute : _table) attribute.own = {};
    _table.Reserve(_own.File().Lines().size());
    for (const KivSettingLine& line : _own.File().Lines()) {
        if (line.key.empty() || (!line.lock && !KivHasValue(line.value))) continue;
        if (line.isPattern && !_isAdministrator) continue; // nobody is inside of the user's file
        TakeLine(line, _isAdministrator, _table[FindOrAdd(line.key, line.hash)].own);
    }
    const auto yields = [&](std::size_t index, const KivSettingEntry& entry) {
        const KivSettingEntry& now = _table[index].own;
        return entry.initial && KivHasValue(now.value) && !now.Equals(saved.at(index));
    };
    for (auto& [index, before] : _unsaved) before = _table[index].own;
    for (auto& [index, before] : _uncommitted) {
        // What was the saved state at the commit follows the disk; what was committed unsaved stays.
        const auto old = saved.find(index);
        if (old == saved.end() || old->second.Equals(before) || yields(index, before))
            before = _table[index].own;
    }
    for (const auto& [index, entry] : working) {
        if (!yields(index, entry)) _table[index].own = entry;
    }
    CollectOwnPrefixLocks();
    ResolveAll();
}

// Before what an attribute says in the written layer changes.
KivSettingEntry& KivSettingStore::Touch(std::size_t index)
{
    _unsaved.Add(index, _table[index].own);
    _uncommitted.Add(index, _table[index].own);
    return _table[index].own;
}

// And after it.
void KivSettingStore::Resolve(KivSettingAttribute& attribute)
{
    attribute.Resolve();
    UpdateBinding(attribute);
}

void KivSettingStore::SetOwn(std::size_t index, KivSettingValue value, bool isInitial)
{
    KivSettingAttribute& attribute = _table[index];
    if (attribute.own.initial == isInitial && KivSameValue(attribute.own.value, value)) return;
    KivSettingEntry& own = Touch(index);
    own.value = std::move(value);
    own.initial = isInitial;
    own.line = 0;
    Resolve(attribute);
}

bool KivSettingStore::Write(std::string_view key, KivSettingValue value)
{
    const std::size_t hash = KivSettingTable::Hash(key);
    std::size_t index = _table.IndexOf(key, hash);
    const bool isKey = index == KivSettingTable::None ? KivIsSettingKey(key) : key.back() != '*';
    if (!isKey || !KivIsSound(value)) return false;
    if (index == KivSettingTable::None) index = FindOrAdd(key, hash);
    const KivSettingAttribute& attribute = _table[index];
    if (attribute.lockLayer >= 0) return false;
    const bool isUsers = KivHasValue(attribute.own.value) && !attribute.own.initial;
    SetOwn(index, std::move(value), _isInitial && !isUsers && !_isAdministrator);
    return true;
}

bool KivSettingStore::SetLock(std::string_view key, bool locked)
{
    const bool isPattern = KivIsSettingPattern(key);
    if (!_isAdministrator || (!isPattern && !KivIsSettingKey(key))) return false;
    const std::size_t index = FindOrAdd(key, KivSettingTable::Hash(key));
    if (_table[index].lockLayer >= 0) return false;
    if (!locked && !isPattern && _table[index].isUnderOwnPrefix) return false; // it would stay locked
    if (_table[index].own.lock == locked) return true;
    KivSettingEntry& own = Touch(index);
    own.lock = locked;
    own.lockLine = 0;
    if (isPattern) CollectOwnPrefixLocks();
    return true;
}

void KivSettingStore::DropOwn(std::string_view key)
{
    if (const std::size_t index = _table.IndexOf(key); index != KivSettingTable::None)
        SetOwn(index, {}, false);
}

bool KivSettingStore::Concerns(std::size_t index, Only only) const
{
    const auto isIt = [&](const char* key) { return _table[index].key == key; };
    return only.empty() || std::any_of(only.begin(), only.end(), isIt);
}

// What was shown before the changes that have not been committed.
KivSettingSnapshot KivSettingStore::SnapshotOfCommit(Only only) const
{
    KivSettingSnapshot snapshot(_table);
    for (const auto& [index, before] : _uncommitted) {
        if (Concerns(index, only)) snapshot.Replace(index, before);
    }
    return snapshot;
}

void KivSettingStore::Drop(KivSettingJournal& journal, Only only)
{
    journal.Drop([&](std::size_t index) { return Concerns(index, only); });
}

KivSettingStore::Keys KivSettingStore::Commit(Only only)
{
    if (_uncommitted.IsEmpty()) return {};
    const KivSettingSnapshot committed = SnapshotOfCommit(only);
    Drop(_uncommitted, only);
    return committed.Changed();
}

KivSettingStore::Keys KivSettingStore::Rollback(Only only)
{
    if (_uncommitted.IsEmpty()) return {};
    const KivSettingSnapshot working(_table);
    for (const auto& [index, before] : _uncommitted) {
        if (!Concerns(index, only)) continue;
        _table[index].own = before;
        Resolve(_table[index]);
    }
    Drop(_uncommitted, only);
    CollectOwnPrefixLocks();
    return working.Changed();
}

KivSettingStore::Keys KivSettingStore::Refresh()
{
    const KivSettingSnapshot before(_table);
    ReadFiles();
    return before.Changed();
}

std::vector<KivSettingChange> KivSettingStore::Unsaved(Only only) const
{
    std::vector<KivSettingChange> changes;
    for (const KivSettingJournal::Record& saved : _unsaved) {
        const KivSettingAttribute& attribute = _table[saved.index];
        if (IsDirty(saved) && Concerns(saved.index, only))
            changes.push_back({KivString(attribute.key), attribute.own});
    }
    return changes;
}

std::shared_ptr<KivFileLock> KivSettingStore::AskTurn()
{
    KivUnicodeString trouble; // the save tells it
    return Unsaved({}).empty() ? nullptr : _own.AskTurn(trouble);
}

KivSettingStore::Keys KivSettingStore::Save(Receipt& result, Only only)
{
    using Outcome = KivSettingOwnFile::Outcome;
    if (Unsaved(only).empty()) {
        Drop(_unsaved, only);
        result = _own.FlushOwed() ? Receipt::Nothing : Receipt::Visible;
        return Commit(only);
    }
    const KivSettingSnapshot committed = SnapshotOfCommit(only), working(_table);
    const Outcome outcome = _own.Save([&](bool wasRead) {
        if (wasRead) TakeOwnFile();
        return Unsaved(only);
    });
    if (outcome == Outcome::Refused) {
        // No point to return to: whoever is told that his changes are not safe may still take them back.
        result = Receipt::Refused;
        return working.Changed();
    }
    result = outcome == Outcome::Nothing   ? Receipt::Nothing
             : outcome == Outcome::Durable ? Receipt::Durable
                                           : Receipt::Visible;
    Drop(_unsaved, only);
    Drop(_uncommitted, only);
    TakeOwnFile();
    return committed.Changed();
}

void KivSettingStore::ReportOtherType(const KivSettingAttribute& attribute, const char* expected)
{
    if (!KivHasValue(attribute.Shown()) || !_typesReported.insert(attribute.key).second) return;
    KivSettingInfo info;
    _sources.Describe(attribute, info);
    KivReport({.text = KivUnicodeString("the value is of the type ") + KivSettingTypeName(attribute.Shown()) +
                       " instead of " + expected + "; the default is used",
               .file = info.file,
               .line = info.line,
               .key = KivString(attribute.key)});
}

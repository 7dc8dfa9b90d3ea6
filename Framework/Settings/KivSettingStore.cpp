#include "Settings/KivSettingStore.h"

#include "Base/KivUndo.h"
#include "Settings/KivSettingJournal.h"
#include "Settings/KivSettingLayers.h"

#include <algorithm>

namespace {

constexpr auto kNoIndex = static_cast<std::uint32_t>(-1);

// Empty where there is no place for it.
KivUnicodeString OwnPath(const KivUnicodeString& directory, std::string_view name)
{
    return directory.IsEmpty() ? directory : KivSettingLayers::FileIn(directory, name);
}

// value: the line's, or none.
void TakeLine(const KivSettingLine& line, KivSettingValue value, bool isAdministrators,
              KivSettingEntry& entry)
{
    if (KivHasValue(value)) {
        entry.value = std::move(value);
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
    : _name(name), _isAdministrator(!editedLayer.IsEmpty()), _editedLayer(editedLayer),
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
        _own.Read();
        TakeOwnFile();
    });
}

void KivSettingStore::Reserve(std::size_t more)
{
    const KivSettingAttribute* const before = _table.Data();
    _table.Reserve(more);
    if (_table.Data() != before) UpdateBindings();
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

// The locks on prefixes when the written layer says this of each attribute.
template <class EntryOf> KivSettingPrefixLocks KivSettingStore::OwnPrefixLocks(const EntryOf& entryOf) const
{
    KivSettingPrefixLocks locks;
    if (!_isAdministrator) return locks;
    for (std::size_t index = 0; index < _table.Size(); ++index) {
        const KivSettingEntry& entry = entryOf(index);
        if (entry.lock && KivIsSettingPattern(_table[index].key))
            locks.Add(_table[index].key, 0, entry.lockLine);
    }
    return locks;
}

void KivSettingStore::UseOwnPrefixLocks(KivSettingPrefixLocks locks)
{
    if (!_isAdministrator) return;
    _ownPrefixLocks = std::move(locks);
    for (KivSettingAttribute& attribute : _table) ApplyOwnPrefixLock(attribute);
}

// After a lock on a prefix may have come or gone.
void KivSettingStore::CollectOwnPrefixLocks()
{
    const auto own = [this](std::size_t index) -> const KivSettingEntry& { return _table[index].own; };
    UseOwnPrefixLocks(OwnPrefixLocks(own));
}

const KivSettingAttribute* KivSettingStore::AddIfLocked(std::string_view key)
{
    const bool isLocked = _prefixLocks.Find(key).layer >= 0 || _ownPrefixLocks.Find(key).layer >= 0;
    if (!isLocked || !KivIsSettingKey(key)) return nullptr;
    return &_table[FindOrAdd(key, KivSettingTable::Hash(key))];
}

std::span<const KivSettingValue* const> KivSettingStore::Bind(std::span<const char* const> keys)
{
    Reserve(keys.size());
    std::vector<std::uint32_t> bound;
    bound.reserve(keys.size());
    for (const char* const key : keys)
        bound.push_back(static_cast<std::uint32_t>(FindOrAdd(key, KivSettingTable::Hash(key))));
    std::vector<const KivSettingValue*> values(bound.size());
    for (const std::uint32_t index : _bound) _table[index].boundIndex = -1;
    for (std::size_t i = 0; i < bound.size(); ++i) _table[bound[i]].boundIndex = static_cast<int>(i);
    _bound.swap(bound);
    _boundValues.swap(values);
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
    std::vector<KivSettingLayer> layers = KivReadAdministratorLayers(
        KivSettingLayerList::Read().Outside(_editedLayer), KivSettingLayers::FileIn({}, _name.View()).View());
    KivSettingPrefixLocks prefixLocks;
    // Each line of the layers that says something of one key, with its attribute.
    struct Statement {
        const KivSettingLine* line;
        int layer;
        std::size_t index;
    };
    std::vector<Statement> statements;
    for (int layer = 0; layer < static_cast<int>(layers.size()); ++layer) {
        if (!layers[static_cast<std::size_t>(layer)].closed.IsEmpty()) prefixLocks.Add("*", layer, 0);
        for (const KivSettingLine& line : layers[static_cast<std::size_t>(layer)].file.Lines()) {
            if (line.isPattern)
                prefixLocks.Add(line.key, layer, line.number);
            else if (line.HasStatement())
                statements.push_back({&line, layer, FindOrAdd(line.key, line.hash)});
        }
    }

    // From here on nothing fails: what has come to hold is neither half of this nor half of that.
    _prefixLocks = std::move(prefixLocks);
    for (KivSettingAttribute& attribute : _table) {
        attribute.given = &KivSettingAttribute::NoValue;
        attribute.givenLayer = -1;
        ApplyPrefixLocks(attribute);
    }
    for (const auto& [line, layer, index] : statements) {
        KivSettingAttribute& attribute = _table[index];
        if (attribute.lockLayer >= 0 && attribute.lockLayer < layer) continue;
        if (KivHasValue(line->value)) {
            attribute.given = &line->value;
            attribute.givenLayer = layer;
            attribute.givenLine = line->number;
        }
        if (line->lock) {
            attribute.lockLayer = layer;
            attribute.lockLine = line->number;
        }
    }
    _sources.SetLayers(std::move(layers));
    ResolveAll();
}

// Takes where the lines stand now that a save wrote. False when more than those may have changed.
bool KivSettingStore::TakeWrittenLines()
{
    const std::vector<KivSettingLine>* const written = _own.WrittenSince(_takenVersion);
    const auto isPattern = [](const KivSettingLine& line) { return line.isPattern; };
    if (!written || std::any_of(written->begin(), written->end(), isPattern)) return false;
    for (const KivSettingLine& line : *written) {
        KivSettingEntry& own = _table[_table.IndexOf(line.key, line.hash)].own;
        own.line = KivHasValue(own.value) ? line.number : 0;
        own.lockLine = own.lock ? line.number : 0;
    }
    _takenVersion = _own.Version();
    return true;
}

// Takes what the own file says, unless it is taken already.
void KivSettingStore::TakeOwnFile()
{
    if (_takenVersion == _own.Version() || TakeWrittenLines()) return;
    _own.RestoreValues();
    const std::vector<KivSettingLine>& lines = _own.File().Lines();
    Reserve(lines.size());
    std::vector<std::uint32_t> indices; // of the lines' attributes
    indices.reserve(lines.size());
    KivSettingMerge::Entries onDisk; // of those that it takes more than moving the value
    const auto begin = [&](const KivSettingJournal& journal) {
        for (const auto& [index, before] : journal) onDisk.try_emplace(index);
    };
    begin(_unsaved);
    begin(_uncommitted);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        constexpr std::size_t ahead = 12;
        if (i + ahead < lines.size()) _table.Prefetch(lines[i + ahead].hash);
        const KivSettingLine& line = lines[i];
        // Nobody is inside of the user's file.
        const bool isTaken = line.HasStatement() && (_isAdministrator || !line.isPattern);
        indices.push_back(isTaken ? static_cast<std::uint32_t>(FindOrAdd(line.key, line.hash)) : kNoIndex);
        if (!isTaken) continue;
        if (line.isPattern) onDisk.try_emplace(indices.back());
        if (onDisk.empty()) continue;
        if (const auto entry = onDisk.find(indices.back()); entry != onDisk.end())
            TakeLine(line, line.value, _isAdministrator, entry->second);
    }
    KivSettingMerge merge(_table, _unsaved, _uncommitted, std::move(onDisk));
    KivSettingPrefixLocks locks = OwnPrefixLocks([&](std::size_t index) -> const KivSettingEntry& {
        static const auto& nothing = *new KivSettingEntry;
        const auto entry = merge.entries.find(index);
        return entry == merge.entries.end() ? nothing : entry->second;
    });

    // From here on nothing fails.
    if (_takenVersion != 0)
        for (KivSettingAttribute& attribute : _table) attribute.own = {};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (indices[i] != kNoIndex)
            TakeLine(lines[i], _own.TakeValue(i), _isAdministrator, _table[indices[i]].own);
    }
    for (auto& [index, entry] : merge.entries) std::swap(_table[index].own, entry);
    std::swap(_unsaved, merge.unsaved);
    std::swap(_uncommitted, merge.uncommitted);
    UseOwnPrefixLocks(std::move(locks));
    ResolveAll();
    _takenVersion = _own.Version();
}

void KivSettingStore::SwapOwn(std::size_t index, KivSettingEntry& entry)
{
    KivSettingAttribute& attribute = _table[index];
    std::swap(attribute.own, entry);
    attribute.Resolve();
    UpdateBinding(attribute);
}

void KivSettingStore::Change(std::size_t index, KivSettingEntry entry)
{
    const KivSettingAttribute& attribute = _table[index];
    if (attribute.own.Equals(entry)) return;
    _unsaved.Add(index, attribute.own);
    _uncommitted.Add(index, attribute.own);
    SwapOwn(index, entry);
    if (attribute.key.back() != '*') return;
    KivUndo undo([&] { SwapOwn(index, entry); });
    CollectOwnPrefixLocks();
    undo.Done();
}

bool KivSettingStore::Write(std::string_view key, KivSettingValue value, bool isInitial)
{
    const std::size_t hash = KivSettingTable::Hash(key);
    std::size_t index = _table.IndexOf(key, hash);
    const bool isKey = index == KivSettingTable::None ? KivIsSettingKey(key) : key.back() != '*';
    if (!isKey || !KivIsSound(value)) return false;
    if (index == KivSettingTable::None) index = FindOrAdd(key, hash);
    if (_table[index].lockLayer >= 0) return false;
    const KivSettingEntry& own = _table[index].own;
    const bool isUsers = KivHasValue(own.value) && !own.initial;
    Change(index, {.value = std::move(value),
                   .initial = isInitial && !isUsers && !_isAdministrator,
                   .lock = own.lock,
                   .lockLine = own.lockLine});
    return true;
}

bool KivSettingStore::SetLock(std::string_view key, bool locked)
{
    const bool isPattern = KivIsSettingPattern(key);
    if (!_isAdministrator || (!isPattern && !KivIsSettingKey(key))) return false;
    const std::size_t index = FindOrAdd(key, KivSettingTable::Hash(key));
    if (_table[index].lockLayer >= 0) return false;
    if (!locked && !isPattern && _table[index].isUnderOwnPrefix) return false; // it would stay locked
    KivSettingEntry entry = _table[index].own;
    entry.lock = locked;
    entry.lockLine = 0;
    Change(index, std::move(entry));
    return true;
}

void KivSettingStore::DropOwn(std::span<const char* const> keys)
{
    std::vector<std::pair<std::size_t, KivSettingEntry>> before;
    before.reserve(keys.size());
    KivUndo undo([&] {
        for (auto& [index, entry] : before) SwapOwn(index, entry);
    });
    for (const char* const key : keys) {
        const std::size_t index = key ? _table.IndexOf(key) : KivSettingTable::None;
        if (index == KivSettingTable::None) continue;
        const KivSettingEntry& own = _table[index].own;
        // A layer lets go of the lock too: one at its value would become one at the default.
        const bool lock = own.lock && !_isAdministrator;
        if (!KivHasValue(own.value) && own.lock == lock) continue;
        KivSettingEntry copy = own;
        Change(index, {.value = {}, .lock = lock, .lockLine = lock ? own.lockLine : 0});
        before.emplace_back(index, std::move(copy));
    }
    undo.Done();
}

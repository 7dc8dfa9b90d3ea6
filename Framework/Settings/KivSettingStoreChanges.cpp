#include "Settings/KivSettingStore.h"

#include "Base/KivUndo.h"

#include <algorithm>

// Commits, rollbacks and saves: all that asks what has changed.

bool KivSettingStore::Concerns(std::size_t index, Only only) const
{
    const auto isIt = [&](const char* key) { return _table[index].key == key; };
    return only.empty() || std::any_of(only.begin(), only.end(), isIt);
}

// The keys that show another value or lock than at the last commit.
KivSettingStore::Keys KivSettingStore::ChangedSinceCommit(Only only) const
{
    std::vector<std::size_t> changed;
    for (const auto& [index, before] : _uncommitted) {
        const KivSettingAttribute& now = _table[index];
        if (Concerns(index, only) && (!KivSameValue(now.ShownWith(before), now.Shown()) ||
                                      now.LockWith(before) != now.LockWith(now.own)))
            changed.push_back(index);
    }
    std::sort(changed.begin(), changed.end());
    Keys keys;
    for (const std::size_t index : changed) keys.emplace_back(_table[index].key);
    return keys;
}

void KivSettingStore::Drop(KivSettingJournal& journal, Only only)
{
    journal.Drop([&](std::size_t index) { return Concerns(index, only); });
}

KivSettingStore::Keys KivSettingStore::Commit(Only only)
{
    if (_uncommitted.IsEmpty()) return {};
    Keys changed = ChangedSinceCommit(only);
    Drop(_uncommitted, only);
    return changed;
}

KivSettingStore::Keys KivSettingStore::Rollback(Only only)
{
    if (_uncommitted.IsEmpty()) return {};
    const KivSettingSnapshot working(_table);
    KivSettingPrefixLocks locks = _ownPrefixLocks;
    const auto swap = [&] {
        for (auto& [index, before] : _uncommitted)
            if (Concerns(index, only)) SwapOwn(index, before);
    };
    swap();
    KivUndo undo([&] {
        swap();
        UseOwnPrefixLocks(std::move(locks));
    });
    CollectOwnPrefixLocks();
    Keys changed = working.Changed();
    undo.Done();
    Drop(_uncommitted, only);
    return changed;
}

KivSettingStore::Keys KivSettingStore::Refresh()
{
    if (!_untold) _untold.emplace(_table);
    ReadFiles();
    Keys changed = _untold->Changed();
    _untold.reset();
    return changed;
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
    if (Unsaved(only).empty()) {
        Drop(_unsaved, only);
        result = _own.FlushOwed() ? Receipt::Nothing : Receipt::Visible;
        return Commit(only);
    }
    // What another program has saved meanwhile may change every key; else it is those of the journal.
    std::optional<KivSettingSnapshot> committed, working;
    result = _own.Save([&] {
        if (_takenVersion != _own.Version()) {
            working.emplace(_table);
            committed.emplace(_table);
            for (const auto& [index, before] : _uncommitted)
                if (Concerns(index, only)) committed->Replace(index, before);
            TakeOwnFile();
        }
        return Unsaved(only);
    });
    if (result == Receipt::Refused) {
        // No point to return to: whoever is told that his changes are not safe may still take them back.
        if (!working) return {};
        Keys changed = working->Changed();
        if (!_untold) _untold.emplace(std::move(*working));
        return changed;
    }
    Keys changed = committed ? committed->Changed() : ChangedSinceCommit(only);
    TakeOwnFile();
    Drop(_unsaved, only);
    Drop(_uncommitted, only);
    return changed;
}

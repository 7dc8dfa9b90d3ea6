#pragma once

#include "Settings/KivSettingRepository.h"
#include "Settings/KivSettingValue.h"

#include <utility>
#include <vector>

// A batch of changes to one repository that is stored in one save. What cannot be changed is left out and
// named; everything else is stored.
class KivSettingTransaction {
public:
    struct Refusal {
        KivString key;
        KivUnicodeString why;  // one or two plain sentences
        KivSettingInfo locker; // who locks the key and where, when that is why (locker.locked)
    };

    // The repository is to outlive the transaction.
    explicit KivSettingTransaction(KivSettingRepository& repository) : _repository(repository) {}

    // Puts a change down; of several for one key the last one counts. Nothing changes before Save.
    // No value drops the one that is there, so that the one of the layers outside shows, else the reader's
    // default; in administrator mode the lock with it.
    void Set(const KivString& key, KivSettingValue value);

    // Makes the changes and saves them. Refusals do not keep the others from being stored; Refused means that
    // the file could not be written: the changes are then in the working state, and the next save writes
    // them.
    KivSettingRepository::Receipt Save();

    // What Save left out, in the order of the changes.
    const std::vector<Refusal>& Refusals() const { return _refusals; }

private:
    void Refuse(const KivString& key);

    KivSettingRepository& _repository;
    std::vector<std::pair<KivString, KivSettingValue>> _changes;
    std::vector<Refusal> _refusals;
};

#pragma once

#include "ExitCode.h"
#include "KivDrwCatalogue.h"
#include "Settings/KivSettingRepository.h"
#include "Settings/KivSettingValue.h"

#include <string>
#include <vector>

class Console;

// One setting with all that is known of it.
struct Setting {
    std::string key;
    const KivDrwCatalogueEntry* entry = nullptr; // null for a key that the catalogue does not know
    KivSettingValue value;                       // in force
    KivSettingValue fallback;                    // the default; none for an unknown key
    KivSettingInfo info;

    bool IsLocked() const { return info.locked || info.lockedHere; }
    bool IsChanged() const { return !KivSameValue(value, fallback); }
    const char* TypeWord() const { return KivSettingTypeWord(entry ? fallback : value); }
    const char* Page() const { return entry ? KivDrwCatalogue::NameOf(entry->group) : ""; }
};

// The drafting settings, as the commands see them.
class Settings {
public:
    // Of the repository.
    static constexpr const char* Name = "DraftingOptions";

    Settings();

    KivSettingRepository& Repository() const { return _repository; }

    Setting Describe(const std::string& key) const;
    // Keys with a value that the catalogue does not know, in the order of the files.
    std::vector<std::string> UnknownKeys() const;

    // False when the key is locked.
    bool Write(const std::string& key, const KivSettingValue& value);
    // Drops the own value of each key.
    void Drop(const std::vector<std::string>& keys);

    // Locks or unlocks each key or beginning in the edited layer; those that stay as they are are said with
    // their locker.
    ExitCode SetLocks(const std::vector<std::string>& keys, bool locked, Console& console);

    // Makes the changes durable. Trouble when they are not; the framework has said why.
    ExitCode Save(Console& console);
    static ExitCode AfterSaving(KivSettingRepository::Receipt receipt, Console& console);
    // What a reading command ends with: trouble when the user's file could not be read.
    ExitCode AfterReading() const;

private:
    KivSettingRepository& _repository;
};

#pragma once

#include "FaultPoints.h"
#include "Support/KivSettingsSandbox.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

using Receipt = KivSettingRepository::Receipt;

// Long: every place and every bit instead of a sample, as .ci/long asks.
bool IsLong();

// What may befall any call.
extern const std::vector<Faults::Fault> kFaults;

// All that stands below a directory, by path relative to it: of each file kind, permissions and owner, and in
// the next line its bytes.
using Tree = std::map<std::string, std::string>;
Tree TreeOf(const std::filesystem::path& root);

// "Load, change, save, load" in a world of its own. Before it, "Locked" and all that begins with "Dim" are
// locked by the layer "company", and this machine has its copies of list and layers, unless it starts for the
// first time.
struct Scenario {
    const char* name;
    const char* own; // what the written file holds, or null: it does not stand
    bool isDamaged = false;
    bool isLayer = false; // written is the layer "site", not the user's file
    bool isLink = false;  // the written file is a link to another one
    bool hasNews = false; // list and layer have changed since the copies were made
    bool isFirst = false; // no directory stands, and no layer

    // Makes the world.
    void Prepare(KivSettingsSandbox& box) const;
    // What the written file is called in a tree, where links lead to.
    std::string Target() const;
    // Loads, changes "Changed" and "Fresh" to 2, and saves.
    KivSettingRepository& Act(KivSettingsSandbox& box, const std::function<void()>& beforeSave = {}) const;
};
extern const std::vector<Scenario> kScenarios;

// Why a lock is open or its value another one; empty when all hold.
std::string OpenLocks(const KivSettingRepository& repository);

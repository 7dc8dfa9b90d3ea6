#pragma once

#include "Parameter/KivParmMagnitude.h"

#include <array>
#include <functional>
#include <string_view>
#include <vector>

// The parameter settings of the process: its magnitudes and the units that the user has chosen for them. A
// start has millimeters and degrees. Used from the thread of the dialogs only.
class KivParmEngine {
public:
    using Listener = std::function<void(const KivParmMagnitude&)>;

    static KivParmEngine& Instance();
    KivParmEngine(const KivParmEngine&) = delete;
    KivParmEngine& operator=(const KivParmEngine&) = delete;

    // The magnitude of a type of KivParmDictionary; null for another type and while it is withheld. It
    // belongs to the engine and lives as long as the process.
    const KivParmMagnitude* Magnitude(const KivString& type) const;

    // Makes the unit that a person calls so ("INCH", "mm", "ft") the current one of the magnitude of this
    // type. False, and nothing changes, for a unit that is unknown or measures something else.
    bool SetCurrentUnit(const KivString& type, std::string_view word);

    // Makes a unit of this name current whether or not controls know it; null: none is current. For hosts
    // with units of their own. False for a type that the engine does not have.
    bool SetForeignUnit(const KivString& type, const char* name);

    // While withheld, a magnitude is not answered, as in a host without parameter settings.
    void Withhold(const KivString& type, bool withheld);

    // Calls the listener after each change of a current unit, until it is removed by the number that is
    // answered (0: an empty listener, which is not kept). A listener may add and remove listeners, itself
    // too; one that was added meanwhile hears of the next change.
    int AddListener(Listener listener);
    void RemoveListener(int number);

private:
    struct Entry {
        KivParmMagnitude magnitude;
        bool withheld = false;
    };
    struct Registration {
        int number;
        Listener listener;
    };

    KivParmEngine();
    Entry* Find(const KivString& type);
    void Change(KivParmMagnitude& magnitude, const char* unit);

    std::array<Entry, 2> _entries;
    std::vector<Registration> _listeners;
    int _lastNumber = 0;
};

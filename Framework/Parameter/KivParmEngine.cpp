#include "Parameter/KivParmEngine.h"

#include "Parameter/KivControlUnit.h"
#include "Parameter/KivParmMagnitude.h"

#include <algorithm>
#include <string>
#include <utility>

KivParmEngine& KivParmEngine::Instance()
{
    static auto& engine = *new KivParmEngine;
    return engine;
}

KivParmEngine::KivParmEngine()
    : _entries{Entry{{KivParmDictionary::LengthType, KivDlgMagnitudeLength, "MM"}},
               Entry{{KivParmDictionary::AngleType, KivDlgMagnitudeAngle, "DEGREE"}}}
{}

KivParmEngine::Entry* KivParmEngine::Find(const KivString& type)
{
    const auto entry = std::find_if(_entries.begin(), _entries.end(),
                                    [&](const Entry& e) { return e.magnitude.Type() == type; });
    return entry == _entries.end() ? nullptr : &*entry;
}

const KivParmMagnitude* KivParmEngine::Magnitude(const KivString& type) const
{
    for (const Entry& entry : _entries)
        if (entry.magnitude.Type() == type && !entry.withheld) return &entry.magnitude;
    return nullptr;
}

bool KivParmEngine::SetCurrentUnit(const KivString& type, std::string_view word)
{
    Entry* const entry = Find(type);
    const KivControlUnit* const unit = KivControlUnit::Find(word);
    if (!entry || !unit || unit->magnitude != entry->magnitude.Kind()) return false;
    Change(entry->magnitude, std::string(unit->name).c_str());
    return true;
}

bool KivParmEngine::SetForeignUnit(const KivString& type, const char* name)
{
    Entry* const entry = Find(type);
    if (!entry) return false;
    Change(entry->magnitude, name);
    return true;
}

void KivParmEngine::Withhold(const KivString& type, bool withheld)
{
    if (Entry* const entry = Find(type)) entry->withheld = withheld;
}

void KivParmEngine::Change(KivParmMagnitude& magnitude, const char* unit)
{
    const KivParmUnit* const current = magnitude.CurrentUnit();
    if (unit ? current && current->Name() == unit : !current) return;
    if (unit)
        magnitude._unit.emplace(KivString(unit));
    else
        magnitude._unit.reset();

    // Listeners may change the list under the loop: the round goes by numbers, and each is called as a copy.
    std::vector<int> round;
    for (const Registration& registration : _listeners) round.push_back(registration.number);
    for (const int number : round) {
        const auto still = std::find_if(_listeners.begin(), _listeners.end(),
                                        [number](const Registration& r) { return r.number == number; });
        if (still == _listeners.end()) continue;
        const Listener listener = still->listener;
        listener(magnitude);
    }
}

int KivParmEngine::AddListener(Listener listener)
{
    if (!listener) return 0;
    _listeners.push_back({++_lastNumber, std::move(listener)});
    return _lastNumber;
}

void KivParmEngine::RemoveListener(int number)
{
    std::erase_if(_listeners, [number](const Registration& r) { return r.number == number; });
}

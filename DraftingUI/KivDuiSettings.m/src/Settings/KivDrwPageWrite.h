#pragma once

#include "KivDrwSettingAccess.h"

#include <initializer_list>
#include <utility>

// How pages and their windows write. Many of them write all their settings whenever one has changed, so that
// most of what they write was chosen by nobody: what is in force already does not become the user's own, and
// a site default that is deployed later still arrives.

// Writes a value that nobody chose: a key of which no layer says anything gets it with the mark of the first
// start, any other one stays as it is. In a layer, where that mark means nothing, nothing is written.
template <class Stored>
void KivDrwKeep(KivSettingRepository* repository, const KivDrwKey<Stored>& key, const Stored& value)
{
    if (!repository || repository->IsAdministrator()) return;
    KivSettingProvenance provenance;
    repository->GetProvenance(key.name, provenance);
    if (provenance.origin != KivSettingInfo::Origin::None) return;
    const KivSettingRepository::InitialScope nobodyChoseIt(*repository);
    KivDrwWrite(repository, key, value);
}
template <class Value, class Stored>
requires(!std::same_as<Value, Stored>) void KivDrwKeep(KivSettingRepository* repository,
                                                       const KivDrwKey<Stored>& key, const Value& value)
{
    KivDrwKeep(repository, key, static_cast<Stored>(value != 0));
}

// Writes a value of a page. One that is in force already was chosen by nobody.
template <class Stored, class Value>
requires KivDrwStoredAs<Value, Stored> HRESULT KivDrwChoose(KivSettingRepository* repository,
                                                            const KivDrwKey<Stored>& key, const Value& value)
{
    Value inForce{};
    KivDrwGet(repository, key, inForce);
    if (inForce == value) {
        KivDrwKeep(repository, key, value);
        return S_OK;
    }
    return KivDrwSet(repository, key, value);
}

// The same for keys that are one value to a person, the components of a color: who chose one of them chose
// all.
template <class Stored> void
KivDrwChooseTogether(KivSettingRepository* repository,
                     std::initializer_list<std::pair<const KivDrwKey<Stored>&, const Stored&>> components)
{
    bool isInForce = true;
    for (const auto& [key, value] : components) isInForce &= KivDrwRead(repository, key) == value;
    for (const auto& [key, value] : components) {
        if (isInForce) {
            KivDrwKeep(repository, key, value);
        } else {
            KivDrwWrite(repository, key, value);
        }
    }
}

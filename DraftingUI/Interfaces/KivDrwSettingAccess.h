#pragma once

#include "KivDrwKeys.h"
#include "Settings/KivSettingRepository.h"

#include <concepts>

// How every reader, page and service moves one setting between a variable and the repository, which may be
// null.

// The repository of all drafting settings, its keys bound to their indices; null when it cannot be had.
inline KivSettingRepository* KivDrwRepository()
{
    KivSettingRepository* repository = KivSettingRepository::GetRepository("DraftingOptions", 0, 1, nullptr);
    if (repository) repository->BindKeys(kKivDrwKeyNames);
    return repository;
}

// A value has the type that its key is stored in; only a switch is an unsigned char here and an int there.
template <class Value, class Stored>
concept KivDrwStoredAs = std::same_as<Value, Stored> ||
    (std::same_as<Value, unsigned char>&& std::same_as<Stored, int>);

// The value in force: what the repository holds, else the default. A repository to which the catalogue's keys
// are bound is read by the key's index, any other one by its name.
template <class Stored>
Stored KivDrwRead(const KivSettingRepository* repository, const KivDrwKey<Stored>& key)
{
    Stored value{};
    if (repository && repository->ReadBound(kKivDrwKeyNames, key.index, &value) == S_OK) return value;
    value = key.makeDefault();
    if (repository && !repository->IsBound(kKivDrwKeyNames, key.index))
        repository->ReadSetting(key.name, &value, 1);
    return value;
}

// Writes a value when there is a repository; whether it was refused is nobody's concern here.
template <class Stored>
void KivDrwWrite(KivSettingRepository* repository, const KivDrwKey<Stored>& key, const Stored& value)
{
    if (repository) repository->WriteSetting(key.name, &value, 1, 0);
}

// The three accessors of a page's setting. They succeed also without a repository: the page shows defaults.
template <class Stored, class Value>
requires KivDrwStoredAs<Value, Stored> HRESULT KivDrwGet(const KivSettingRepository* repository,
                                                         const KivDrwKey<Stored>& key, Value& value)
{
    const Stored stored = KivDrwRead(repository, key);
    if constexpr (std::same_as<Value, Stored>) {
        value = stored;
    } else {
        value = stored != 0;
    }
    return S_OK;
}

template <class Stored, class Value>
requires KivDrwStoredAs<Value, Stored> HRESULT KivDrwSet(KivSettingRepository* repository,
                                                         const KivDrwKey<Stored>& key, const Value& value)
{
    if constexpr (std::same_as<Value, Stored>) {
        KivDrwWrite(repository, key, value);
    } else {
        KivDrwWrite(repository, key, static_cast<Stored>(value != 0));
    }
    return S_OK;
}

template <class Stored> HRESULT KivDrwGetInfo(const KivSettingRepository* repository,
                                              const KivDrwKey<Stored>& key, KivSettingInfo& info)
{
    if (repository) repository->GetInfo(key.name, &info, 0);
    info.ReadAs(KivSettingTypeName(Stored()));
    return S_OK;
}

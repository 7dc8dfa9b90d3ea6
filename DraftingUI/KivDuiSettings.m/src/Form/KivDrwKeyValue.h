#pragma once

#include "Form/KivPageValue.h"
#include "Settings/KivDrwPageWrite.h"

// A value of a page without accessors, bound to a key itself. Registers with the page's values when it is
// constructed, so that declaration order is the order of reading.
template <class T, class Stored = T> class KivDrwKeyValue final : public KivCachedValue<T> {
public:
    // The repository may be null and is not owned.
    KivDrwKeyValue(KivBoundValues& values, KivSettingRepository* repository, const KivDrwKey<Stored>& key)
        : _repository(repository), _key(key)
    {
        values.push_back(this);
    }
    const KivSettingKind& Kind() const { return _key.kind; }
    void LoadDefault() override { LoadFrom(nullptr); }
    void Load() override { LoadFrom(_repository); }
    void Save() override
    {
        if (this->cached == _loaded) {
            KivDrwKeep(_repository, _key, this->cached);
        } else {
            KivDrwChoose(_repository, _key, this->cached);
        }
    }
    HRESULT GetInfo(KivSettingInfo& info) const override { return KivDrwGetInfo(_repository, _key, info); }

private:
    void LoadFrom(const KivSettingRepository* repository)
    {
        KivDrwGet(repository, _key, this->cached);
        _loaded = this->cached;
    }

    KivSettingRepository* _repository;
    const KivDrwKey<Stored>& _key;
    T _loaded{};
};

// A value as a member of a page or a window that has _values and _repository:
// KIV_KEY_VALUE(_genDim, int, KivDrwKeys::GenDim).
#define KIV_KEY_VALUE(value, T, key)                                                                         \
    KivDrwKeyValue<T, KivDrwStored<decltype(key)>> value{_values, _repository, key};

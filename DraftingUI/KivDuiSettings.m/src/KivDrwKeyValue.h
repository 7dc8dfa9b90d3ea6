#pragma once

#include "KivDrwPageWrite.h"
#include "KivPageValue.h"

// A value of a page without accessors, bound to a key itself.
class KivDrwPresetValue {
public:
    // Takes the default into the cache.
    virtual void Preset() = 0;

protected:
    ~KivDrwPresetValue() = default;
};

// The same with its type. Registers with the page's values when it is constructed, so that declaration order
// is the order of reading.
template <class T, class Stored = T> class KivDrwKeyValue final : public KivCachedValue<T>,
                                                                  public KivDrwPresetValue {
public:
    // The repository may be null and is not owned.
    KivDrwKeyValue(KivBoundValues& values, std::vector<KivDrwPresetValue*>& presets,
                   KivSettingRepository* repository, const KivDrwKey<Stored>& key)
        : _repository(repository), _key(key)
    {
        values.push_back(this);
        presets.push_back(this);
    }
    void Preset() override
    {
        KivDrwGet(nullptr, _key, this->cached);
        _loaded = this->cached;
    }
    void Load() override
    {
        KivDrwGet(_repository, _key, this->cached);
        _loaded = this->cached;
    }
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
    KivSettingRepository* _repository;
    const KivDrwKey<Stored>& _key;
    T _loaded{};
};

// A value as a member of a page or a window that has _values, _presets and _repository:
// KIV_KEY_VALUE(_genDim, int, KivDrwKeys::GenDim).
#define KIV_KEY_VALUE(value, T, key)                                                                         \
    KivDrwKeyValue<T, KivDrwStored<decltype(key)>> value{_values, _presets, _repository, key};
